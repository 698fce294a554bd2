// Clicking the boxes of type, request and signature.

#include "declaration/screen_fixture.h"

namespace padral::pruebas {
namespace {

class Casillas : public PantallaGeneral {
protected:
    void comprobarCambiado() {
        EXPECT_TRUE(estado.ModificacionesPendientes);
        EXPECT_FALSE(habilitado(u"cmdAnterior"));
    }
    QString lista(const QString& apartados) {
        return estado.Texto(655) + apartados + estado.Texto(656);
    }
};

struct ClicTipo {
    const char16_t* casilla;
    char16_t letra;
};
class Tipo : public Casillas, public ::testing::WithParamInterface<ClicTipo> {};

TEST_P(Tipo, SinDatosSeTomaSinPregunta) {
    abrirNueva();
    pulsar(GetParam().casilla);
    EXPECT_EQ(g.Causa1, QString(QChar(GetParam().letra)));
    for (const auto& tipo : CasillasTipo())
        EXPECT_EQ(marcada(tipo.casilla), tipo.letra == QChar(GetParam().letra));
    comprobarCambiado();
}

TEST_P(Tipo, ConDatosPreguntaYCancelarNoCambiaNada) {
    const bool cese = GetParam().letra == u'C';
    llenarTodo(d);
    g.Causa1 = QString();
    abrirRegistro();
    const auto pregunta = [&](Respuesta respuesta) {
        if (cese)
            esperaPregunta(lista(QStringLiteral("3 4 AII ")), estado.Texto(535), respuesta);
        else
            esperaPregunta(527, 528, respuesta);
    };
    pregunta(Respuesta::Cancelar);
    sinCambios([&] { pulsar(GetParam().casilla); });
    avisos.Verificar();
    EXPECT_FALSE(marcada(GetParam().casilla)) << "drawn again from the record";
    for (const auto a : SeccionesConRegistro) EXPECT_TRUE(lleno(d, a));
    pregunta(Respuesta::Aceptar);
    pulsar(GetParam().casilla);
    EXPECT_EQ(g.Causa1, QString(QChar(GetParam().letra)));
    EXPECT_EQ(lleno(d, Apartado::Seis), cese);
    EXPECT_EQ(lleno(d, Apartado::Tres), !cese);
    comprobarCambiado();
}

TEST_P(Tipo, QuitarloPreguntaPorTodo) {
    llenarTodo(d);
    g.Causa1 = QChar(GetParam().letra);
    ponerParticipe(u"12345678Z", u"A");
    abrirRegistro();
    const QString apartados =
        GetParam().letra == u'C' ? QStringLiteral("3 4 5 6 7 AI") : QStringLiteral("3 4 5 6 7 AII");
    esperaPregunta(lista(apartados), estado.Texto(535), Respuesta::Cancelar);
    sinCambios([&] { pulsar(GetParam().casilla); });
    avisos.Verificar();
    EXPECT_TRUE(marcada(GetParam().casilla));
    esperaPregunta(lista(apartados), estado.Texto(535), Respuesta::Aceptar);
    pulsar(GetParam().casilla);
    EXPECT_EQ(g.Causa1, QString());
    EXPECT_FALSE(marcada(GetParam().casilla));
    for (const auto a : SeccionesConRegistro) EXPECT_EQ(lleno(d, a), a == Apartado::Dos);
    comprobarCambiado();
}

TEST_P(Tipo, SinDatosSeQuitaSinPregunta) {
    abrirNueva();
    pulsar(GetParam().casilla);
    pulsar(GetParam().casilla);
    EXPECT_EQ(g.Causa1, QString());
}
INSTANTIATE_TEST_SUITE_P(Tipos, Tipo,
                         ::testing::Values(ClicTipo{u"chkDeclaracionPrevia", u'P'},
                                           ClicTipo{u"chkDeclaracionInicio", u'I'},
                                           ClicTipo{u"chkDeclaracionModificacion", u'M'},
                                           ClicTipo{u"chkDeclaracionCese", u'C'}));

TEST_F(Casillas, PreviaMarcaSusApartadosYSusBotones) {
    abrirNueva();
    rellenarCampo(u"txtDNI", QStringLiteral("E12345674"));
    pulsar(u"chkDeclaracionPrevia");
    for (const auto* nombre : {u"chkApartado2", u"chkApartado3", u"chkApartado5", u"chkApartado8"})
        EXPECT_TRUE(marcada(nombre)) << s(nombre);
    for (const auto* nombre : {u"cmdApartado2", u"cmdApartado3", u"cmdApartado5", u"cmdAnexo"})
        EXPECT_TRUE(habilitado(nombre)) << s(nombre);
    EXPECT_FALSE(habilitado(u"chkApartado3"));
}

TEST_F(Casillas, DejarLaModificacionVaciaSuFecha) {
    g.Causa1 = QStringLiteral("M");
    g.FechaModificacion(20150101);
    abrirRegistro();
    pulsar(u"chkDeclaracionInicio");
    EXPECT_EQ(g.FechaModificacion(), 0);
    EXPECT_EQ(fecha(u"mskFechaModificacion"), QStringLiteral("__/__/____"));
    EXPECT_FALSE(habilitado(u"mskFechaModificacion"));
}

struct ClicSolicitud {
    const char16_t* casilla;
    char16_t letra;
    const char16_t* rechazadaCon;
    int mensaje;
};
class Solicitud : public Casillas, public ::testing::WithParamInterface<ClicSolicitud> {};

TEST_P(Solicitud, ConCadaTipo) {
    const auto& [casilla, letra, rechazadaCon, mensaje] = GetParam();
    for (const char16_t tipo : {u' ', u'P', u'I', u'M', u'C'}) {
        SCOPED_TRACE(static_cast<char>(tipo));
        g.Causa1 = tipo == u' ' ? QString() : QString(QChar(tipo));
        g.Causa2 = letra == u'F' ? QStringLiteral("D") : QStringLiteral("F");
        const QString antes = g.Causa2;
        estado.ModificacionesPendientes = false;
        abrirRegistro();
        const bool rechazada = q(rechazadaCon).contains(QChar(tipo));
        if (rechazada) {
            esperaAviso(mensaje, 449);
            sinCambios([&, nombre = casilla] { pulsar(nombre); });
            avisos.Verificar();
        } else {
            pulsar(casilla);
            comprobarCambiado();
        }
        EXPECT_EQ(g.Causa2, rechazada ? antes : QString(QChar(letra)));
        for (const auto& otra : CasillasSolicitud())
            EXPECT_EQ(marcada(otra.casilla), g.Causa2 == QString(otra.letra));
    }
}

TEST_P(Solicitud, QuitarlaLaDejaVacia) {
    g.Causa2 = QChar(GetParam().letra);
    g.FechaConstitucion = g.FechaInscripcion = 20150101;
    abrirRegistro();
    pulsar(GetParam().casilla);
    EXPECT_EQ(g.Causa2, QString());
    EXPECT_EQ(g.FechaConstitucion + g.FechaInscripcion, 0);
    EXPECT_FALSE(marcada(GetParam().casilla));
    comprobarCambiado();
}
INSTANTIATE_TEST_SUITE_P(Letras, Solicitud,
                         ::testing::Values(ClicSolicitud{u"chkPorComienzo", u'A', u"CM", 448},
                                           ClicSolicitud{u"chkModificacionFormaJuridica", u'B',
                                                         u"PIC", 450},
                                           ClicSolicitud{u"chkAnulacionPorCese", u'C', u"PIM", 451},
                                           ClicSolicitud{u"chkPorExtravio", u'D', u"", 0},
                                           ClicSolicitud{u"chkPorDefinitivo", u'E', u"", 0},
                                           ClicSolicitud{u"chkPorOtrasCausas", u'F', u"", 0}));

TEST_F(Casillas, ElMismoVaciaAlRepresentanteYAlQuitarloTodo) {
    generalesValidos(g);
    g.ElMismo = QString();
    g.FirmaEnCalidadDe = QStringLiteral("ADMINISTRADOR");
    g.DNIRepresentante = QStringLiteral("12345678Z");
    g.NombreRepresentante = QStringLiteral("R");
    abrirRegistro();
    pulsar(u"chkElMismo");
    EXPECT_EQ(g.DNIRepresentante + g.NombreRepresentante, QString());
    EXPECT_EQ(g.FirmaEnCalidadDe, QStringLiteral("EL MISMO"));
    EXPECT_EQ(g.ElMismo, QStringLiteral("X"));
    EXPECT_TRUE(bloqueado(u"txtFirmaEnCalidadDe"));
    comprobarCambiado();
    pulsar(u"chkElMismo");
    EXPECT_EQ(g.FirmaEnCalidadDe + g.ElMismo, QString());
    EXPECT_FALSE(bloqueado(u"txtFirmaEnCalidadDe"));
    EXPECT_EQ(texto(u"txtFirmaEnCalidadDe"), QString());
}

TEST_F(Casillas, ElRotuloDeElMismoEsSuCasilla) {
    abrirNueva();
    pulsar(c(u"lblElMismo"), {3, 3});
    EXPECT_EQ(g.ElMismo, QStringLiteral("X"));
}

TEST_F(Casillas, UnCampoRechazadoNoDejaMarcarlas) {
    abrirNueva();
    escribir(u"txtDNI", QStringLiteral("1"));
    esperaAviso(545, 158);
    sinCambios([&] { pulsar(u"chkDeclaracionInicio"); });
    EXPECT_FALSE(marcada(u"chkDeclaracionInicio"));
    EXPECT_EQ(foco(), QStringLiteral("txtDNI"));
}

}  // namespace
}  // namespace padral::pruebas
