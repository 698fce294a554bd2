// The shared values: language, texts, messages.

#include "core/shared_state.h"

#include "core/data_fixture.h"
#include "store/declarations_server.h"

namespace padral {
namespace {

using pruebas::ConDatos;

TEST_F(ConDatos, ElegirIdiomaSeEscribeEnElActo) {
    const std::pair<const char16_t*, qint16> casos[] = {
        {u"E", 10000}, {u"C", 0}, {u"X", 0}, {u"e", 0}};
    for (const auto& [letra, desplazamiento] : casos) {
        const QString idioma = QString::fromUtf16(letra);
        estado.mdi.IDI(idioma);
        EXPECT_EQ(estado.mdi.IDI(), idioma);
        EXPECT_EQ(estado.DesplazamientoIdioma, desplazamiento);
        EXPECT_EQ(estado.fecha.fecidioma, idioma);
        EXPECT_EQ(Valor(estado.RutaBDModificacion, "SELECT IDI FROM TGENERAL"), idioma);
    }
}

TEST_F(ConDatos, LeerYModificarElIdiomaNoTocanLoDemas) {
    estado.mdi.ModificarIdioma(QStringLiteral("E"));
    EXPECT_EQ(estado.mdi.IDI(), QStringLiteral("C"));
    EXPECT_EQ(Valor(estado.RutaBDModificacion, "SELECT IDI FROM TGENERAL"), QStringLiteral("E"));
    const QByteArray antes = Contenido(estado.RutaBDModificacion);
    estado.mdi.LeerIdioma();
    EXPECT_EQ(estado.mdi.IDI(), QStringLiteral("E"));
    EXPECT_EQ(estado.DesplazamientoIdioma, 0);
    EXPECT_EQ(estado.fecha.fecidioma, QStringLiteral("C"));
    EXPECT_EQ(Contenido(estado.RutaBDModificacion), antes);
}

// Reading alone leaves dates and texts as they are; the session takes the letter as it is.
TEST_F(ConDatos, LeerOtraLetraDejaLasFechasHastaLaSesion) {
    Ejecutar(estado.RutaBDModificacion, "UPDATE TGENERAL SET IDI = 'X'");
    estado.mdi.LeerIdioma();
    EXPECT_EQ(estado.mdi.IDI(), QStringLiteral("X"));
    EXPECT_EQ(estado.fecha.fecidioma, QStringLiteral("C"));
    InicializarSesion(estado);
    EXPECT_EQ(estado.fecha.fecidioma, QStringLiteral("X"));
    EXPECT_EQ(estado.DesplazamientoIdioma, 0);
    EXPECT_EQ(estado.fecha.FecVacia(), QStringLiteral("__/__/____"));
    EXPECT_EQ(estado.fecha.LongToString(20021231), QStringLiteral("2002/12/31"));
}

TEST_F(ConDatos, ElAjusteDeActualizacionVaYViene) {
    for (const qint16 valor : {qint16{1}, qint16{0}, qint16{-1}}) {
        estado.act.ActOnline = valor;
        estado.act.GuardarActOnline(estado.RutaBDModificacion);
        cActOnline otro;
        otro.LeerActOnline(estado.RutaBDModificacion);
        EXPECT_EQ(otro.ActOnline, valor);
    }
}

TEST_F(ConDatos, CuentaLasDeclaraciones) {
    estado.mdi.InicializarContadores();
    EXPECT_EQ(estado.mdi.NUMDECLA, 0);
    SvrDPadral::cDeclaracionesSvr svr;
    svr.mdbname = estado.RutaBDModificacion;
    SvrDPadral::FilasDeclaracion filas;
    filas.general = Fila(18);
    svr.GuardarDeclaracion(filas);
    svr.GuardarDeclaracion(filas);
    estado.mdi.InicializarContadores();
    EXPECT_EQ(estado.mdi.NUMDECLA, 2);
}

TEST_F(ConDatos, LosTextosSonLosDelIdiomaDelMomento) {
    EXPECT_EQ(estado.Texto(449), QStringLiteral("Error"));
    EXPECT_EQ(estado.SegunIdioma(QStringLiteral("a"), QStringLiteral("b")), QStringLiteral("a"));
    estado.mdi.IDI(QStringLiteral("E"));
    EXPECT_EQ(estado.Texto(449), QStringLiteral("Akatsa"));
    EXPECT_EQ(estado.Texto(650), QStringLiteral("####/##/##"));
    EXPECT_EQ(estado.SegunIdioma(QStringLiteral("a"), QStringLiteral("b")), QStringLiteral("b"));
    EXPECT_THROW(estado.Texto(639), TextoAusente);
    EXPECT_EQ(estado.Texto(152), QStringLiteral("*"));
}

TEST_F(ConDatos, AvisosYPreguntas) {
    avisos.Espera(QStringLiteral("El NIF introducido no es válido"),
                  QStringLiteral("NIF no válido"));
    estado.AvisarNifNoValido();
    avisos.Espera(QStringLiteral("Datos no válidos"), QStringLiteral("Error"));
    estado.Avisar(125, 449);
    const Mensaje pregunta{QStringLiteral("p"), QStringLiteral("t"), Icono::Exclamacion,
                           Botones::AceptarCancelar};
    avisos.Espera(pregunta, Respuesta::Aceptar);
    EXPECT_TRUE(estado.Preguntar(pregunta.texto, pregunta.titulo));
    avisos.Espera(pregunta, Respuesta::Cancelar);
    EXPECT_FALSE(estado.Preguntar(pregunta.texto, pregunta.titulo));
}

TEST_F(ConDatos, ElServidorComunViveLoQueLaLlamada) {
    EXPECT_TRUE(estado.ValidaNifCif(QStringLiteral("12345678Z")));
    EXPECT_FALSE(estado.ValidaNifCif(QStringLiteral("12345678A")));
    EXPECT_EQ(estado.ObjComun, nullptr);
}

}  // namespace
}  // namespace padral
