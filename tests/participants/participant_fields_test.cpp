// Name and percentage of a participant.

#include <QClipboard>
#include <QLocale>

#include "participants/participant_fixture.h"

namespace padral::pruebas {
namespace {

using Campos = PantallaParticipe;

TEST_F(Campos, ElNombreSeGuardaEnMayusculas) {
    const std::pair<const char16_t*, const char16_t*> casos[] = {
        {u"soto ane", u"SOTO ANE"},
        {u"peña (b) \"el\" 2", u"PEÑA (B) EL 2"},
        {u"abcdefghijabcdefghijabcdefghijxyz", u"ABCDEFGHIJABCDEFGHIJABCDEFGHIJ"},
        {u"", u""}};
    for (const auto& [escrito, guardado] : casos) {
        verUno();
        enfocar(u"txtNombre");
        c<QLineEdit>(u"txtNombre")->selectAll();
        if (q(escrito).isEmpty()) tecla(Qt::Key_Delete);
        for (const QChar letra : q(escrito))
            QTest::sendKeyEvent(QTest::Click, c(u"txtNombre"), Qt::Key_unknown, letra,
                                Qt::NoModifier);
        EXPECT_EQ(p().NOMBRE, q(u"LASA JON")) << "not before the field is left";
        esperaBotones(true, true);
        tecla(Qt::Key_Tab);
        EXPECT_EQ(p().NOMBRE.texto(), q(guardado).leftJustified(30));
        EXPECT_EQ(texto(u"txtNombre"), q(guardado));
        EXPECT_TRUE(p().MODIFPARTICIPES);
        esperaBotones(false, false);
    }
}

TEST_F(Campos, ElMismoNombreNoEsUnCambio) {
    verUno();
    sinCambios([&] {
        rellenar(u"txtNombre", u"lasa jon");
        rellenar(u"txtNombre", u" lasa jon ");
    });
    esperaBotones(true, true);
    // What an older file may hold.
    DatosParticipe antiguo = participeAjeno();
    antiguo.NOMBRE = q(u"Lasa Jon");
    verUno(antiguo);
    sinCambios([&] { rellenar(u"txtNombre", u"lasa jon"); });
}

constexpr int Cero = 386, Excesivo = 695;

/// What is typed over the percentage of a participant, and what comes of it.
struct Porcentaje {
    const char16_t* escrito;
    float antes;
    int mensaje;  ///< 0: it is taken
    float despues;
    const char16_t* mostrado;
};
const Porcentaje Porcentajes[] = {
    {u"25", 33.25F, 0, 25, u"25,00"},
    {u"0,01", 33.25F, 0, 0.01F, u"0,01"},
    {u"0,01", 0, 0, 0.01F, u"0,01"},
    {u"100", 33.25F, 0, 100, u"100,00"},
    {u"100,00", 0, 0, 100, u"100,00"},
    {u"99,99", 33.25F, 0, 99.99F, u"99,99"},
    {u"12.5", 33.25F, 0, 12.5F, u"12,50"},
    {u"12,5", 0, 0, 12.5F, u"12,50"},
    {u",5", 33.25F, 0, 0.5F, u"0,50"},
    {u"5,", 33.25F, 0, 5, u"5,00"},
    {u"007", 33.25F, 0, 7, u"7,00"},
    {u"12,345", 33.25F, 0, 12.34F, u"12,34"},
    {u"1a2-b", 33.25F, 0, 12, u"12,00"},
    // Nothing changes.
    {u"33,25", 33.25F, 0, 33.25F, u"33,25"},
    {u"33.25", 33.25F, 0, 33.25F, u"33,25"},
    {u"033,25", 33.25F, 0, 33.25F, u"33,25"},
    {u"", 0, 0, 0, u""},
    // Entered, and 0.
    {u"0", 33.25F, Cero, 33.25F, u"0,00"},
    {u"0,00", 33.25F, Cero, 33.25F, u"0,00"},
    {u"", 33.25F, Cero, 33.25F, u"0,00"},
    {u",", 33.25F, Cero, 33.25F, u"0,00"},
    {u".", 33.25F, Cero, 33.25F, u"0,00"},
    {u",", 0, Cero, 0, u"0,00"},
    {u"0", 0, Cero, 0, u"0,00"},
    {u"0,00", 0, Cero, 0, u"0,00"},
    {u"100,01", 33.25F, Excesivo, 33.25F, u"100,01"},
    {u"100.01", 33.25F, Excesivo, 33.25F, u"100,01"},
    {u"100,01", 0, Excesivo, 0, u"100,01"},
    {u"101", 33.25F, Excesivo, 33.25F, u"101,00"},
    {u"999,99", 0, Excesivo, 0, u"999,99"},
};
void PrintTo(const Porcentaje& caso, std::ostream* salida) { *salida << s(caso.escrito); }

class TablaPorcentajes : public PantallaParticipe,
                         public ::testing::WithParamInterface<Porcentaje> {};

TEST_P(TablaPorcentajes, SeTomaOSeRechaza) {
    const auto& caso = GetParam();
    for (const auto& sistema : {QLocale(QLocale::English), QLocale(QLocale::Spanish)}) {
        const QLocale habitual;
        QLocale::setDefault(sistema);
        DatosParticipe inicial = participeAjeno();
        inicial.PorcenPart = caso.antes;
        verUno(inicial);
        if (caso.mensaje != 0) esperaAviso(caso.mensaje, 387);
        rellenar(u"txtPorcentaje", caso.escrito);
        avisos.Verificar();
        EXPECT_EQ(p().PorcenPart, caso.despues);
        EXPECT_EQ(texto(u"txtPorcentaje"), q(caso.mostrado));
        const bool cambia = caso.despues != caso.antes;
        EXPECT_EQ(p().MODIFPARTICIPES, cambia);
        esperaBotones(!cambia, !cambia);
        EXPECT_EQ(foco(), q(caso.mensaje == 0 ? u"chkEDSimplificada1" : u"txtPorcentaje"));
        QLocale::setDefault(habitual);
    }
}
INSTANTIATE_TEST_SUITE_P(Porcentajes, TablaPorcentajes, ::testing::ValuesIn(Porcentajes));

TEST_F(Campos, LosMensajesDelPorcentaje) {
    verUno();
    avisos.Espera(q(u"Porcentaje debe ser mayor que 0..."), q(u"Fallo en porcentaje"));
    rellenar(u"txtPorcentaje", u"");
    avisos.Espera(q(u"El Porcentaje de participación no debe ser mayor que 100..."),
                  q(u"Fallo en porcentaje"));
    rellenar(u"txtPorcentaje", u"100,01");
    avisos.Verificar();
    enEuskera();
    verUno();
    avisos.Espera(q(u"Ehunekoak 0 baino handiagoa izan behar du..."), q(u"Akatsa ehunekoan"));
    rellenar(u"txtPorcentaje", u"0");
    avisos.Espera(q(u"Partaidetza ehunekoak ez du 100 baino handiagoa izan behar..."),
                  q(u"Akatsa ehunekoan"));
    rellenar(u"txtPorcentaje", u"200");
    avisos.Verificar();
}

TEST_F(Campos, TrasUnPorcentajeRechazadoSePuedeCorregir) {
    verUno();
    esperaAviso(Cero, 387);
    rellenar(u"txtPorcentaje", u"0");
    rellenar(u"txtPorcentaje", u"40");
    EXPECT_EQ(p().PorcenPart, 40);
    // One that was never filled may be left empty again.
    abrirNuevo();
    esperaAviso(Excesivo, 387);
    rellenar(u"txtPorcentaje", u"101");
    rellenar(u"txtPorcentaje", u"");
    EXPECT_EQ(p().PorcenPart, 0);
    EXPECT_EQ(foco(), q(u"chkEDSimplificada1"));
}

TEST_F(Campos, UnPorcentajeRechazadoDetieneLoQueSePulso) {
    for (const auto* boton : {u"cmdAceptar", u"cmdVolver", u"cmdOtroParticipe", u"cmdCancelar"}) {
        verUno();
        escribir(u"txtPorcentaje", u"100,01");
        esperaAviso(Excesivo, 387);
        sinCambios([&] { pulsar(boton); });
        avisos.Verificar();
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_EQ(foco(), q(u"txtPorcentaje"));
    }
}

TEST_F(Campos, LoPegadoEnElPorcentajeLlevaComa) {
    verUno();
    enfocar(u"txtPorcentaje");
    c<QLineEdit>(u"txtPorcentaje")->selectAll();
    QGuiApplication::clipboard()->setText(q(u" 45.75 % "));
    tecla(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(texto(u"txtPorcentaje"), q(u"45,75"));
    tecla(Qt::Key_Return);
    EXPECT_EQ(p().PorcenPart, 45.75F);
}

}  // namespace
}  // namespace padral::pruebas
