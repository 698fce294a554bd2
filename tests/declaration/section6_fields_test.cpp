// The two dates of section 6, and where the focus goes from field to field and among the buttons.

#include "declaration/section6_fixture.h"

namespace padral::pruebas {
namespace {

struct Campo6 {
    const char16_t* nombre;
    qint32 DatosApartado6::*miembro;
};
void PrintTo(const Campo6& campo, std::ostream* salida) { *salida << s(campo.nombre); }
constexpr Campo6 Cese{u"txtFecha", &DatosApartado6::FECHACESE};
constexpr Campo6 Inscripcion{u"txtInscripcion", &DatosApartado6::FechaInscripcion};

class Fechas6 : public PantallaApartado6, public ::testing::WithParamInterface<Campo6> {
protected:
    const char16_t* campo() const { return GetParam().nombre; }
    qint32 valor() const { return r.*GetParam().miembro; }
    /// Refused: the message, nothing stored, the focus stays, the text too.
    void esperaRechazo(const char16_t* escrita, const QString& mensaje, const QString& titulo) {
        SCOPED_TRACE(s(escrita));
        avisos.Espera(mensaje, titulo);
        sinCambios([&] { rellenar(campo(), escrita); });
        avisos.Verificar();
        EXPECT_EQ(foco(), q(campo()));
        EXPECT_FALSE(r.MODIFAPARTADO6);
    }
};

TEST_P(Fechas6, UnaFechaDelIntervaloSeGuarda) {
    const std::pair<const char16_t*, qint32> casos[] = {{u"01011900", 19000101},
                                                        {u"31122099", 20991231},
                                                        {u"29022016", 20160229},
                                                        {u"15062015", 20150615}};
    abrirValida();
    for (const auto& [escrita, guardada] : casos) {
        rellenar(campo(), escrita);
        EXPECT_EQ(valor(), guardada);
        EXPECT_TRUE(cambiado());
        EXPECT_FALSE(estado.ModificacionesPendientes) << "not before the section is accepted";
        sinCambios([&] { rellenar(campo(), escrita); });
        EXPECT_FALSE(r.MODIFAPARTADO6);
    }
}

TEST_P(Fechas6, EnEuskeraSeEscribePorElAnyo) {
    enEuskera();
    abrirValida();
    rellenar(campo(), u"20160229");
    EXPECT_EQ(valor(), 20160229);
    EXPECT_EQ(fecha(campo()), q(u"2016/02/29"));
}

TEST_P(Fechas6, UnaQueNoEsFechaSeRechaza) {
    poner(20150331, 10, u"CESE DE ACTIVIDAD", 20150401);
    abrir();
    for (const auto* escrita :
         {u"31022015", u"29021900", u"32012015", u"01132015", u"31120999", u"1", u"0101201"})
        esperaRechazo(escrita, q(u"La fecha introducida no es válida..."), q(u"Fallo en la fecha"));
}

TEST_P(Fechas6, UnaFueraDelIntervaloSeRechaza) {
    poner(20150331, 10, u"CESE DE ACTIVIDAD", 20150401);
    abrir();
    for (const auto* escrita : {u"31121899", u"01012100", u"01011000"})
        esperaRechazo(escrita,
                      q(u"La fecha introducida debe estar en el intervalo 01/01/1900 y "
                        u"31/12/2099."),
                      q(u"Fallo en la fecha"));
}

TEST_P(Fechas6, LosRechazosEnEuskera) {
    enEuskera();
    abrirValida();
    esperaRechazo(u"20150231", q(u"Idatzitako data ez da baliagarria..."), q(u"Akatsa datan"));
    esperaRechazo(u"21000101", q(u"Data 1900/01/01 eta 2099/12/31 bitartean egongo da."),
                  q(u"Akatsa datan"));
}

TEST_P(Fechas6, UnaOrdenNoSigueConLaFechaRechazada) {
    abrirValida();
    for (const auto* boton : {u"cmdInicio", u"cmdCancelar", u"cmdAnterior", u"cmdSiguiente"}) {
        escribir(campo(), u"31022015");
        esperaAviso(88, 86);
        pulsar(boton);
        avisos.Verificar();
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_EQ(foco(), q(campo()));
    }
}

TEST_P(Fechas6, VaciaSinHaberlaNoEsCambio) {
    r.LIMPIARDATOS();
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        abrir();
        sinCambios([&] { rellenar(campo(), u""); });
        EXPECT_FALSE(r.MODIFAPARTADO6);
        EXPECT_EQ(fecha(campo()), euskera ? q(u"____/__/__") : q(u"__/__/____"));
    }
}

// Zeros are digits: such a field is not empty.
TEST_P(Fechas6, DeTodoCerosSeRechazaConFechaYSinElla) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        for (const bool habia : {false, true}) {
            if (habia)
                poner(20150331, 10, u"CESE DE ACTIVIDAD", 20150401);
            else
                r.LIMPIARDATOS();
            abrir();
            esperaRechazo(u"00000000",
                          euskera ? q(u"Idatzitako data ez da baliagarria...")
                                  : q(u"La fecha introducida no es válida..."),
                          euskera ? q(u"Akatsa datan") : q(u"Fallo en la fecha"));
            EXPECT_EQ(fecha(campo()), euskera ? q(u"0000/00/00") : q(u"00/00/0000"));
        }
    }
}
INSTANTIATE_TEST_SUITE_P(Campos, Fechas6, ::testing::Values(Cese, Inscripcion));

TEST_F(PantallaApartado6, LaInscripcionSePuedeBorrar) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        poner(20150331, 10, u"CESE DE ACTIVIDAD", 20150401);
        abrir();
        rellenar(u"txtInscripcion", u"");
        EXPECT_EQ(r.FechaInscripcion, 0);
        EXPECT_TRUE(r.MODIFAPARTADO6);
        EXPECT_EQ(fecha(u"txtInscripcion"), euskera ? q(u"____/__/__") : q(u"__/__/____"));
        EXPECT_EQ(foco(), q(u"cmdInicio"));
    }
}

// Empty it is a date before the first one.
TEST_F(PantallaApartado6, LaDeCeseNoSePuedeBorrar) {
    const std::pair<const char16_t*, const char16_t*> casos[] = {
        {u"", u"La fecha introducida debe estar en el intervalo 01/01/1900 y 31/12/2099."},
        {u"00000000", u"La fecha introducida no es válida..."}};
    for (const qint16 causa : std::initializer_list<qint16>{0, 10})
        for (const auto& [escrita, mensaje] : casos) {
            poner(20150331, causa, u"CESE DE ACTIVIDAD");
            abrir();
            avisos.Espera(q(mensaje), q(u"Fallo en la fecha"));
            sinCambios([&] { rellenar(u"txtFecha", escrita); });
            avisos.Verificar();
            EXPECT_EQ(foco(), q(u"txtFecha"));
            EXPECT_FALSE(r.MODIFAPARTADO6);
            rellenar(u"txtFecha", u"31032015");
            EXPECT_EQ(foco(), q(u"cmbDescripcion"));
        }
}

TEST_F(PantallaApartado6, LaFechaDeCeseNoPoneAquiLaDeEfecto) {
    g.FECHAVIGOR = 20140101;
    abrirValida();
    rellenar(u"txtFecha", u"15062015");
    EXPECT_EQ(g.FECHAVIGOR, 20140101);
}

TEST_F(PantallaApartado6, ElTabuladorYElIntroSiguenElOrdenDeLectura) {
    const QStringList campos = {q(u"txtFecha"), q(u"cmbDescripcion"), q(u"txtInscripcion"),
                                q(u"cmdInicio")};
    const QStringList conLibre = {q(u"txtFecha"), q(u"cmbDescripcion"), q(u"txtSinEpigrafe"),
                                  q(u"txtInscripcion"), q(u"cmdInicio")};
    for (const bool libre : {false, true})
        for (const auto codigo : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Enter}) {
            poner(20150331, libre ? 99 : 11, u"FALLECIMIENTO");
            abrir();
            for (const auto& campo : libre ? conLibre : campos) {
                EXPECT_EQ(foco(), campo);
                sinCambios([&] { tecla(codigo); });
            }
            EXPECT_FALSE(r.MODIFAPARTADO6);
            EXPECT_EQ(pantallas.Tomar(),
                      codigo == Qt::Key_Tab ? QStringList() : salida(u"FrmDatGen"))
                << "Enter has pressed the first button";
        }
}

TEST_F(PantallaApartado6, LosBotonesCierranElOrden) {
    abrirValida();
    enfocar(u"txtInscripcion");
    QStringList visitados;
    for (int i = 0; i < 5; ++i) {
        tecla(Qt::Key_Tab);
        visitados << foco();
    }
    EXPECT_EQ(visitados, (QStringList{q(u"cmdInicio"), q(u"cmdCancelar"), q(u"cmdAnterior"),
                                      q(u"cmdSiguiente"), q(u"txtFecha")}));
}

TEST_F(PantallaApartado6, ElCodigoDaElFocoALaLista) {
    poner(20150331, 99, u"JUBILACION");
    abrir();
    EXPECT_TRUE(bloqueado(q(u"txtCausa")));
    pulsar(u"txtCausa");
    EXPECT_EQ(foco(), q(u"cmbDescripcion"));
    enfocar(u"txtFecha");
    c(u"txtCausa")->setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(foco(), q(u"cmbDescripcion"));
    sinCambios([&] { QTest::keyClicks(c(u"txtCausa"), q(u"11")); });
    EXPECT_EQ(texto(u"txtCausa"), q(u"99"));
}

struct Flecha {
    const char16_t* desde;
    Qt::Key tecla;
    const char16_t *hasta, *sinSiguiente;
};
TEST_F(PantallaApartado6, LasFlechasVanDeBotonEnBoton) {
    const Flecha casos[] = {
        {u"cmdAnterior", Qt::Key_Left, u"cmdCancelar", u"cmdCancelar"},
        {u"cmdAnterior", Qt::Key_Up, u"cmdCancelar", u"cmdCancelar"},
        {u"cmdCancelar", Qt::Key_Right, u"cmdSiguiente", u"cmdAnterior"},
        {u"cmdCancelar", Qt::Key_Down, u"cmdSiguiente", u"cmdAnterior"},
        {u"cmdAnterior", Qt::Key_Right, u"cmdSiguiente", u"cmdAnterior"},
        {u"cmdSiguiente", Qt::Key_Left, u"cmdAnterior", nullptr},
        {u"cmdSiguiente", Qt::Key_Right, u"cmdSiguiente", nullptr},
        {u"cmdCancelar", Qt::Key_Left, u"cmdInicio", u"cmdInicio"},
        {u"cmdCancelar", Qt::Key_Up, u"cmdInicio", u"cmdInicio"},
        {u"cmdInicio", Qt::Key_Right, u"cmdCancelar", u"cmdCancelar"},
        {u"cmdInicio", Qt::Key_Left, u"cmdInicio", u"cmdInicio"},
    };
    for (const bool sigue : {true, false}) {
        g.Apartado7 = sigue ? q(u"X") : q(u" ");
        abrirValida();
        for (const auto& caso : casos) {
            const auto* hasta = sigue ? caso.hasta : caso.sinSiguiente;
            if (!hasta) continue;
            SCOPED_TRACE(s(caso.desde));
            for (const auto con : {Qt::NoModifier, Qt::KeypadModifier}) {
                enfocar(caso.desde);
                tecla(caso.tecla, con);
                EXPECT_EQ(foco(), q(hasta));
            }
        }
    }
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}

}  // namespace
}  // namespace padral::pruebas
