// Paths, the carrying over of older files, and the values that a start reads.

#include "core/startup.h"

#include "core/data_fixture.h"
#include "platform/failure.h"

namespace padral {
namespace {

using pruebas::ConDatos;

struct CasoRuta {
    const char16_t *programa, *tablas;
};

TEST(ObtenerRutas, DatosJuntoALaCarpetaCliente) {
    const CasoRuta casos[] = {
        {u"/opt/padral", u"/opt/padral/Tablas/"},
        {u"/opt/padral/CLIENTE", u"/opt/padral/Tablas/"},
        {u"/opt/padral/cliente", u"/opt/padral/Tablas/"},
        {u"/opt/padral/Cliente", u"/opt/padral/Tablas/"},
        {u"/opt/padral/cLiEnTe", u"/opt/padral/Tablas/"},
        {u"/opt/padral/cliente/bin", u"/opt/padral/Tablas/"},
        {u"/opt/padral/clientes", u"/opt/padral/Tablas/"},
        // The letters count, not the folder: the character before them goes with them.
        {u"/opt/miclientela/bin", u"/opt/m/Tablas/"},
        {u"/opt/Cliente/a/cliente", u"/opt/Tablas/"},
        {u"/opt/client", u"/opt/client/Tablas/"},
    };
    pruebas::GrabadorAvisos avisos;
    pruebas::RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    for (const auto& caso : casos) {
        estado.CarpetaPrograma = QString::fromUtf16(caso.programa);
        ObtenerRutas(estado);
        const QString tablas = QString::fromUtf16(caso.tablas);
        EXPECT_EQ(estado.RutaTablas, tablas) << estado.CarpetaPrograma.toStdString();
        EXPECT_EQ(estado.RutaBDLectura, tablas + QStringLiteral("DPadralLec.mdb"));
        EXPECT_EQ(estado.RutaBDModificacion, tablas + QStringLiteral("DPadralMod.mdb"));
    }
}

TEST_F(ConDatos, UnArranqueLeeLosValoresDelAlmacen) {
    ASSERT_FALSE(TraspasarDatos(estado));
    InicializarSesion(estado);
    EXPECT_EQ(estado.mdi.NUMDECLA, 0);
    EXPECT_EQ(estado.mdi.FECMIN, 19000101);
    EXPECT_EQ(estado.mdi.FECMAX, 20991231);
    EXPECT_EQ(estado.mdi.FECDECMIN, 19900101);
    EXPECT_EQ(estado.act.URLAct, Valor(estado.RutaBDLectura, "SELECT URLAct FROM TGENERAL"));
    EXPECT_FALSE(estado.act.URLAct.isEmpty());
    EXPECT_EQ(estado.mdi.IDI(), QStringLiteral("C"));
    EXPECT_EQ(estado.act.ActOnline, -1);
    EXPECT_EQ(estado.DesplazamientoIdioma, 0);
    EXPECT_EQ(estado.fecha.fecidioma, QStringLiteral("C"));
}

struct CasoIdioma {
    const char *sql, *letra;
    qint16 desplazamiento;
};

TEST_F(ConDatos, ElIdiomaEsElDelAlmacenYSoloEEsEuskera) {
    const CasoIdioma casos[] = {{"UPDATE TGENERAL SET IDI = 'E', ActOnline = 1", "E", 10000},
                                {"UPDATE TGENERAL SET IDI = 'C', ActOnline = 0", "C", 0},
                                {"UPDATE TGENERAL SET IDI = 'X', ActOnline = 0", "X", 0},
                                {"UPDATE TGENERAL SET IDI = 'e', ActOnline = 0", "e", 0}};
    for (const auto& caso : casos) {
        Ejecutar(estado.RutaBDModificacion, caso.sql);
        InicializarSesion(estado);
        EXPECT_EQ(estado.mdi.IDI(), QString::fromLatin1(caso.letra));
        EXPECT_EQ(estado.DesplazamientoIdioma, caso.desplazamiento);
        EXPECT_EQ(estado.fecha.fecidioma, QString::fromLatin1(caso.letra));
        EXPECT_EQ(estado.act.ActOnline, caso.desplazamiento == 0 ? 0 : 1);
    }
}

TEST_F(ConDatos, UnArranqueNoEscribeNada) {
    const QByteArray declaraciones = Contenido(estado.RutaBDModificacion);
    const QByteArray catalogos = Contenido(estado.RutaBDLectura);
    ASSERT_FALSE(TraspasarDatos(estado));
    InicializarSesion(estado);
    EXPECT_EQ(Contenido(estado.RutaBDModificacion), declaraciones);
    EXPECT_EQ(Contenido(estado.RutaBDLectura), catalogos);
    EXPECT_EQ(QDir(estado.RutaTablas).entryList(QDir::Files).size(), 2);
}

/// The failure of a step, "" when there was none.
template <class Paso>
std::pair<QString, QString> falloDe(Paso paso) {
    try {
        paso();
    } catch (const Fallo& fallo) {
        return {fallo.Castellano(), fallo.Euskera()};
    }
    return {};
}

TEST_F(ConDatos, UnFalloDelTraspasoLlevaSuMarca) {
    QFile fichero(estado.RutaBDModificacion);
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly | QIODevice::Truncate));
    fichero.write(QByteArray(4096, 'x'));
    fichero.close();
    const auto [castellano, euskera] = falloDe([this] { TraspasarDatos(estado); });
    const QString marca = QStringLiteral("ComprobarBDVersion\n");
    EXPECT_TRUE(castellano.startsWith(marca)) << castellano.toStdString();
    EXPECT_TRUE(euskera.startsWith(marca)) << euskera.toStdString();
    for (const QString& texto : {castellano, euskera})
        EXPECT_TRUE(texto.contains(QStringLiteral("DPadralMod.mdb"))) << texto.toStdString();
    EXPECT_EQ(Contenido(estado.RutaBDModificacion), QByteArray(4096, 'x'));
}

TEST_F(ConDatos, SinFicheroDeDeclaracionesFallaLaPrimeraLlamada) {
    ASSERT_TRUE(QFile::remove(estado.RutaBDModificacion));
    EXPECT_FALSE(TraspasarDatos(estado));
    const auto [castellano, euskera] = falloDe([this] { estado.mdi.InicializarContadores(); });
    EXPECT_TRUE(castellano.contains(QStringLiteral("DPadralMod.mdb"))) << castellano.toStdString();
    EXPECT_TRUE(euskera.contains(QStringLiteral("DPadralMod.mdb"))) << euskera.toStdString();
    EXPECT_FALSE(castellano.contains(QStringLiteral("ComprobarBDVersion")));
    EXPECT_THROW(InicializarSesion(estado), Fallo);
    EXPECT_FALSE(QFile::exists(estado.RutaBDModificacion));
}

TEST_F(ConDatos, SinFicheroDeCatalogosFallaLaSesionTrasElTraspaso) {
    ASSERT_TRUE(QFile::remove(estado.RutaBDLectura));
    EXPECT_FALSE(TraspasarDatos(estado));
    const auto [castellano, euskera] = falloDe([this] { InicializarSesion(estado); });
    EXPECT_TRUE(castellano.contains(QStringLiteral("DPadralLec.mdb"))) << castellano.toStdString();
    EXPECT_TRUE(euskera.contains(QStringLiteral("DPadralLec.mdb"))) << euskera.toStdString();
    EXPECT_FALSE(QFile::exists(estado.RutaBDLectura));
}

// The steps come one after another: what a failing one would have set stays as it was.
TEST_F(ConDatos, LaSesionSigueSuOrden) {
    Ejecutar(estado.RutaBDModificacion, "UPDATE TGENERAL SET IDI = 'E', ActOnline = 1");
    ASSERT_TRUE(QFile::remove(estado.RutaBDLectura));
    estado.mdi.NUMDECLA = 7;
    EXPECT_THROW(InicializarSesion(estado), Fallo);
    EXPECT_EQ(estado.mdi.NUMDECLA, 0);
    EXPECT_EQ(estado.mdi.FECMIN, 0);
    EXPECT_EQ(estado.mdi.IDI(), QStringLiteral("C"));
    EXPECT_EQ(estado.act.ActOnline, 0);
    EXPECT_EQ(estado.DesplazamientoIdioma, 0);
}

}  // namespace
}  // namespace padral
