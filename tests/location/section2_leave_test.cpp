// The four ways out of section 2, and the others.

#include "location/section2_fixture.h"

namespace padral::pruebas {
namespace {

struct Salida {
    const char16_t *boton, *imagen;
    Qt::Key espanol, euskera;  // access keys
    const char16_t* pantalla;
    bool valida, dejaOrigen;
};
void PrintTo(const Salida& salida, std::ostream* os) { *os << s(salida.boton); }

const Salida Salidas[] = {
    {u"cmdApartadoSiguiente", u"PicSiguiente", Qt::Key_S, Qt::Key_N, u"FrmApartado3", true, false},
    {u"cmdApartadoAnterior", u"PicAnterior", Qt::Key_A, Qt::Key_R, u"FrmDatGen", true, true},
    {u"cmdInicio", u"PicInicio", Qt::Key_I, Qt::Key_H, u"FrmDatGen", true, true},
    {u"cmdCancelar", u"PicCan", Qt::Key_C, Qt::Key_Z, u"FrmDatGen", false, true},
};

class CadaSalida : public PantallaApartado2, public ::testing::WithParamInterface<Salida> {
protected:
    void SetUp() override {
        PantallaApartado2::SetUp();
        g.Apartado3 = q(u"X");
        estado.FormularioOrigen = q(u"FrmDecLista");
    }
    void esperaFuera() {
        EXPECT_EQ(pantallas.Tomar(), QStringList({q(u"Mostrar ") + q(GetParam().pantalla),
                                                  q(u"Descargar FrmApartado2")}));
        EXPECT_FALSE(pantallas.EnEspera());
        const QString origen = GetParam().dejaOrigen ? q(u"FrmApartado2") : q(u"FrmDecLista");
        EXPECT_EQ(estado.FormularioOrigen, origen);
        cerrar();
        EXPECT_EQ(estado.FormularioOrigen, origen) << "the unload adds nothing";
    }
    bool valida() const { return GetParam().valida; }
};

TEST_P(CadaSalida, SinCambiosNoAceptaNada) {
    r.Fis = enProvinciaPropia();
    for (const bool lleno : {false, true}) {
        r.Lleno = lleno;
        DatosApartado2 copia = r;
        copia.Fis.Numero = 99;
        r.TablaAuxiliar(copia);
        estado.FormularioOrigen = q(u"FrmDecLista");
        abrir();
        pulsar(q(GetParam().boton));
        EXPECT_EQ(r.Lleno, lleno);
        EXPECT_TRUE(r.TablaAuxiliar() == copia);
        EXPECT_TRUE(r.Fis == enProvinciaPropia());
        EXPECT_FALSE(estado.ModificacionesPendientes);
        esperaFuera();
    }
}

TEST_P(CadaSalida, ConCambiosAceptaOLosDeshace) {
    r.Fis = enProvinciaPropia();
    abrirAceptado();
    const DatosApartado2 antes = r;
    escribir(q(u"txtDomFis"), q(u"NUEVA"));
    bool enEspera = false;
    pantallas.alLlamar = [&](const QString&) { enEspera = pantallas.EnEspera(); };
    pulsar(q(GetParam().boton));
    EXPECT_TRUE(enEspera);
    EXPECT_FALSE(r.Modificaciones);
    EXPECT_EQ(estado.ModificacionesPendientes, valida());
    EXPECT_EQ(r.Lleno, valida());
    EXPECT_EQ(r.Fis.NombreDomicilio, valida() ? q(u"NUEVA") : q(u"MAYOR"));
    EXPECT_EQ(r.TablaAuxiliar().Fis.NombreDomicilio, r.Fis.NombreDomicilio);
    EXPECT_EQ(r.TablaAuxiliar().Lleno, valida());
    if (!valida()) {
        EXPECT_TRUE(datos() == antes);
    }
    esperaFuera();
}

TEST_P(CadaSalida, NoValidoSeQuedaSalvoCancelar) {
    for (const bool conCambios : {false, true}) {
        r.Fis = enProvinciaPropia();
        r.Act.Telefono = 1;
        abrirAceptado();
        estado.FormularioOrigen = q(u"FrmDecLista");
        if (conCambios) escribir(q(u"txtDomFis"), q(u"NUEVA"));
        if (valida()) esperaAviso(124, 125);
        pulsar(q(GetParam().boton));
        avisos.Verificar();
        if (!valida()) {
            esperaFuera();
            continue;
        }
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_EQ(foco(), q(u"txtSigDomAct"));
        EXPECT_EQ(r.Modificaciones, conCambios);
        EXPECT_FALSE(r.Lleno);
        EXPECT_FALSE(estado.ModificacionesPendientes);
        EXPECT_EQ(r.TablaAuxiliar().Fis.NombreDomicilio, q(u"MAYOR"));
        EXPECT_EQ(estado.FormularioOrigen, q(u"FrmDecLista"));
    }
}

TEST_P(CadaSalida, LaImagenYLaTeclaHacenLoMismo) {
    abrir();
    pulsar(q(GetParam().imagen));
    esperaFuera();
    for (const bool vasco : {false, true}) {
        if (vasco) enEuskera();
        estado.FormularioOrigen = q(u"FrmDecLista");
        abrir();
        tecla(vasco ? GetParam().euskera : GetParam().espanol, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([&] { return pantallas.Llamadas.size() == 2; }, 5000));
        esperaFuera();
    }
}
INSTANTIATE_TEST_SUITE_P(Salidas, CadaSalida, ::testing::ValuesIn(Salidas));

using OtrasSalidas = PantallaApartado2;

TEST_F(OtrasSalidas, LlenoSigueTrasVaciarloTodoYAceptar) {
    r.Fis.NombreDomicilio = q(u"MAYOR");
    r.Lleno = true;
    abrirAceptado();
    rellenar(q(u"txtDomFis"), QString());
    pulsar(q(u"cmdInicio"));
    EXPECT_TRUE(r.Lleno);
    EXPECT_TRUE(r.TablaAuxiliar().Lleno);
    EXPECT_TRUE(r.Fis == BloqueDireccion{});
    d.MarcarApartados();
    EXPECT_EQ(g.Apartado2, q(u"X"));
}

TEST_F(OtrasSalidas, VaciarUnaSeccionSinLlenarLaLlena) {
    r.Fis.NombreDomicilio = q(u"MAYOR");
    abrirAceptado();
    rellenar(q(u"txtDomFis"), QString());
    pulsar(q(u"cmdInicio"));
    EXPECT_TRUE(r.Lleno);
}

TEST_F(OtrasSalidas, CancelarDevuelveElDomicilioYSuMarca) {
    for (const auto& domicilio : DomiciliosEsperados) {
        if (!domicilio.marca) continue;
        for (const bool yaMarcado : {false, true}) {
            SCOPED_TRACE(s(domicilio.sufijo));
            r.InicializarApartado2(u"TODOS");
            r.Fis = enProvinciaPropia();
            if (yaMarcado)
                r.*domicilio.elMismo = q(u"X");
            else
                r.*domicilio.bloque = completa();
            r.Lleno = true;
            abrirAceptado();
            const DatosApartado2 antes = r;
            pulsar(q(domicilio.marca));
            ASSERT_FALSE(datos() == antes);
            if (yaMarcado) rellenar(nombre(u"txtDom", domicilio), q(u"OTRA"));
            pulsar(q(u"cmdCancelar"));
            EXPECT_TRUE(datos() == antes);
        }
    }
}

TEST_F(OtrasSalidas, SinPantallaSiguienteSeQueda) {
    g.Apartado3 = q(u"X");
    pantallas.ausentes = {q(u"FrmApartado3")};
    abrir();
    pulsar(q(u"cmdApartadoSiguiente"));
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}

TEST_F(OtrasSalidas, SinNadaDetrasSiguienteNoHaceNada) {
    abrir();
    pulsar(q(u"cmdApartadoSiguiente"));
    pulsar(q(u"PicSiguiente"));
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}

TEST_F(OtrasSalidas, DescargadaDeOtroModoDejaSoloSuNombre) {
    r.Fis = enProvinciaPropia();
    estado.FormularioOrigen = q(u"FrmDecLista");
    abrirAceptado();
    rellenar(q(u"txtDomFis"), q(u"NUEVA"));
    const DatosApartado2 antes = r;
    cerrar();
    EXPECT_EQ(estado.FormularioOrigen, q(u"FrmApartado2"));
    EXPECT_TRUE(datos() == antes);
    EXPECT_FALSE(estado.ModificacionesPendientes);
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}

TEST_F(OtrasSalidas, LasFlechasRecorrenLosBotonesYSaltanElApagado) {
    g.Apartado3 = q(u"X");
    abrir();
    enfocar(q(u"cmdInicio"));
    for (const auto* boton : {u"cmdCancelar", u"cmdApartadoAnterior", u"cmdApartadoSiguiente"}) {
        tecla(Qt::Key_Right);
        EXPECT_EQ(foco(), q(boton));
    }
    tecla(Qt::Key_Down);
    EXPECT_EQ(foco(), q(u"cmdApartadoSiguiente")) << "the last one";
    for (const auto* boton : {u"cmdApartadoAnterior", u"cmdCancelar", u"cmdInicio"}) {
        tecla(Qt::Key_Up);
        EXPECT_EQ(foco(), q(boton));
    }
    g.Apartado3 = q(u" ");
    abrir();
    enfocar(q(u"cmdApartadoAnterior"));
    tecla(Qt::Key_Right);
    EXPECT_EQ(foco(), q(u"cmdApartadoAnterior"));
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}

}  // namespace
}  // namespace padral::pruebas
