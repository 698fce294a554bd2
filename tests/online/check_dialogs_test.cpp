// The check as a whole: its order, which dialog shows, and what the state says at that moment.

#include "online/online_fixture.h"

namespace padral {
namespace {

using DialogosDeComprobar = pruebas::Actualizaciones;
using pruebas::GrabadorDescarga;

QByteArray versionDe(const char* version) {
    return GrabadorDescarga::FicheroVersion(version, "http://127.0.0.1/baja", "texto");
}

TEST_F(DialogosDeComprobar, WaitsASecondBeforeItAsks) {
    const QDateTime antes = reloj.Hora;
    qint64 esperado = 0;
    descarga.alDescargar = [&] { esperado = antes.msecsTo(reloj.Hora); };
    online.ComprobarVersion();
    EXPECT_EQ(esperado, 1000);
    EXPECT_EQ(antes.msecsTo(reloj.Hora), 1000);
}

struct CasoDialogo {
    const char* version;  ///< none: no connection
    bool preferencias;
    const char16_t* mostrado;  ///< with SitAct and ComVer of its moment
    int sitAct, comVer;
};

TEST_F(DialogosDeComprobar, ShowsWhatThereIsToTell) {
    const CasoDialogo casos[] = {
        {nullptr, false, u"FrmSinConexion 1 0", 1, 0},
        {nullptr, true, u"FrmSinConexion 1 0", 1, 0},
        {"1.30", false, u"FrmSinConexion 4 0", 4, 0},
        {"1.30", true, u"FrmSinConexion 4 0", 4, 0},
        {"", false, u"FrmSinConexion 4 0", 4, 0},
        {"1.30.1", false, u"", 3, 0},
        {"1.30.1", true, u"FrmVersionCheck 0 0", 3, 0},
        {"1.31.0", false, u"FrmVersionCheck 0 1", 3, 1},
        {"1.31.0", true, u"FrmVersionCheck 0 1", 3, 1},
        {"1.29.9", false, u"FrmVersionCheck 0 1", 3, 1},
        {"01.30.1", false, u"FrmVersionCheck 0 1", 3, 1},
    };
    for (const auto& caso : casos) {
        const char* nombre = caso.version ? caso.version : "no connection";
        act.SitAct = act.ComVer = 0;
        mostrados.clear();
        preferencias = caso.preferencias;
        descarga.Contenido.reset();
        if (caso.version) descarga.Contenido = versionDe(caso.version);
        online.ComprobarVersion();
        EXPECT_EQ(mostrados.join(u'|'), QString::fromUtf16(caso.mostrado)) << nombre;
        EXPECT_EQ(act.SitAct, caso.sitAct) << nombre;
        EXPECT_EQ(act.ComVer, caso.comVer) << nombre;
    }
}

TEST_F(DialogosDeComprobar, SaysNothingWhenSomethingComesInBetween) {
    descarga.Contenido = versionDe("1.31.0");
    ocupar(ini());
    preferencias = true;
    for (const qint16 antes : std::initializer_list<qint16>{0, 1, 3, 4}) {
        act.SitAct = antes;
        online.ComprobarVersion();
        EXPECT_EQ(act.SitAct, antes);
    }
    EXPECT_TRUE(mostrados.isEmpty());
    EXPECT_EQ(act.ComVer, 0);
    EXPECT_EQ(act.ActVer1, QString());
}

TEST_F(DialogosDeComprobar, NeverForgetsThatTheVersionsDiffered) {
    descarga.Contenido = versionDe("1.31.0");
    online.ComprobarVersion();
    descarga.Contenido = versionDe("1.30.1");
    online.ComprobarVersion();
    EXPECT_EQ(act.ActVer2, QStringLiteral("30"));
    descarga.Contenido = versionDe("1.30");
    online.ComprobarVersion();
    descarga.Contenido.reset();
    online.ComprobarVersion();
    EXPECT_EQ(act.ComVer, 1);
    EXPECT_EQ(
        mostrados,
        (QStringList{QStringLiteral("FrmVersionCheck 0 1"), QStringLiteral("FrmVersionCheck 3 1"),
                     QStringLiteral("FrmSinConexion 4 1"), QStringLiteral("FrmSinConexion 1 1")}));
}

TEST_F(DialogosDeComprobar, ReplacesTheFileAndLeavesIt) {
    for (const char* version : {"1.30.1", "1.29.9", "1.30"}) {
        descarga.Contenido = versionDe(version);
        online.ComprobarVersion();
        EXPECT_EQ(contenido(ini()), versionDe(version));
    }
}

TEST_F(DialogosDeComprobar, DoesNotRunTwiceAtATime) {
    descarga.Contenido = versionDe("1.31.0");
    descarga.alDescargar = [this] {
        if (descarga.Direcciones.size() < 3) online.ComprobarVersion();
    };
    online.ComprobarVersion();
    EXPECT_EQ(descarga.Direcciones.size(), 1);
    EXPECT_EQ(mostrados.size(), 1);
    online.ComprobarVersion();
    EXPECT_EQ(descarga.Direcciones.size(), 2);
}

}  // namespace
}  // namespace padral
