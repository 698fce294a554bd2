// The four dates of the general data: what is stored, what is refused and in which words.

#include "declaration/screen_fixture.h"

namespace padral::pruebas {
namespace {

class Fechas : public PantallaGeneral {
protected:
    /// All four fields open.
    void abrirAbiertas(const char16_t* nombre) {
        generalesValidos(g);
        g.FECHADECLARACION = 0;
        g.Causa1 = QStringLiteral("M");
        g.Causa2 = q(nombre) == QStringLiteral("mskFechaConst") ? QStringLiteral("A")
                                                                : QStringLiteral("E");
        abrirRegistro();
    }
    qint32 valor(const char16_t* nombre) const {
        const QString n = q(nombre);
        if (n == QStringLiteral("mskFechaDeclaracion")) return g.FECHADECLARACION;
        if (n == QStringLiteral("mskFechaModificacion")) return g.FechaModificacion();
        return n == QStringLiteral("mskFechaConst") ? g.FechaConstitucion : g.FechaInscripcion;
    }
};

struct Aceptada {
    const char16_t *nombre, *tecleada;
    qint32 guardada;
};
class FechaAceptada : public Fechas, public ::testing::WithParamInterface<Aceptada> {};

TEST_P(FechaAceptada, SeGuarda) {
    const auto& [nombre, tecleada, guardada] = GetParam();
    abrirAbiertas(nombre);
    rellenarCampo(nombre, q(tecleada));
    EXPECT_EQ(valor(nombre), guardada);
    EXPECT_TRUE(estado.ModificacionesPendientes);
    estado.ModificacionesPendientes = false;
    sinCambios([&] { rellenarCampo(nombre, q(tecleada)); });
}
INSTANTIATE_TEST_SUITE_P(Filas, FechaAceptada,
                         ::testing::Values(Aceptada{u"mskFechaDeclaracion", u"01011990", 19900101},
                                           Aceptada{u"mskFechaDeclaracion", u"31122099", 20991231},
                                           Aceptada{u"mskFechaModificacion", u"01011900", 19000101},
                                           Aceptada{u"mskFechaModificacion", u"29022016", 20160229},
                                           Aceptada{u"mskFechaConst", u"01011900", 19000101},
                                           Aceptada{u"mskFechaConst", u"31122099", 20991231},
                                           Aceptada{u"mskFechaInscrip", u"01011900", 19000101},
                                           Aceptada{u"mskFechaInscrip", u"31122099", 20991231}));

struct Rechazada {
    const char16_t* nombre;
    const char16_t* tecleada;  ///< day first; in Basque year first
    const char16_t* anyoPrimero;
    std::array<int, 3> textos;  ///< one text, or three with the limits between
    int titulo;
    bool minimoPrimero = false;
};
class FechaRechazada : public Fechas, public ::testing::WithParamInterface<Rechazada> {
protected:
    QString mensaje(const QString& minimo, const QString& maximo) const {
        const auto& t = GetParam().textos;
        if (t[1] == 0) return estado.Texto(t[0]);
        const bool antes = GetParam().minimoPrimero;
        return estado.Texto(t[0]) + (antes ? minimo : maximo) + estado.Texto(t[1]) +
               (antes ? maximo : minimo) + estado.Texto(t[2]);
    }
    void comprobar(const QString& tecleada, const QString& minimo, const QString& maximo) {
        abrirAbiertas(GetParam().nombre);
        avisos.Espera(mensaje(minimo, maximo), estado.Texto(GetParam().titulo));
        sinCambios([&] { rellenarCampo(GetParam().nombre, tecleada); });
        avisos.Verificar();
        EXPECT_EQ(foco(), q(GetParam().nombre));
        EXPECT_EQ(valor(GetParam().nombre), 0);
    }
};

TEST_P(FechaRechazada, EnCastellano) {
    const bool declaracion = GetParam().minimoPrimero;
    comprobar(q(GetParam().tecleada),
              declaracion ? QStringLiteral("01/01/1990") : QStringLiteral("01/01/1900"),
              QStringLiteral("31/12/2099"));
}

TEST_P(FechaRechazada, EnEuskera) {
    enEuskera();
    const bool declaracion = GetParam().minimoPrimero;
    comprobar(q(GetParam().anyoPrimero),
              declaracion ? QStringLiteral("1990/01/01") : QStringLiteral("1900/01/01"),
              QStringLiteral("2099/12/31"));
}

constexpr const char16_t *Dec = u"mskFechaDeclaracion", *Mod = u"mskFechaModificacion",
                         *Con = u"mskFechaConst", *Ins = u"mskFechaInscrip";
INSTANTIATE_TEST_SUITE_P(
    Filas, FechaRechazada,
    ::testing::Values(Rechazada{Dec, u"31121989", u"19891231", {657, 658, 659}, 517, true},
                      Rechazada{Dec, u"01012100", u"21000101", {657, 658, 659}, 517, true},
                      Rechazada{Dec, u"31022015", u"20150231", {657, 658, 659}, 517, true},
                      Rechazada{Dec, u"1", u"2", {657, 658, 659}, 517, true},
                      Rechazada{Mod, u"31022015", u"20150231", {544, 0, 0}, 465},
                      Rechazada{Mod, u"1", u"2", {544, 0, 0}, 465},
                      Rechazada{Mod, u"31121899", u"18991231", {660, 661, 662}, 465},
                      Rechazada{Mod, u"01012100", u"21000101", {660, 661, 662}, 465},
                      Rechazada{Con, u"30022015", u"20150230", {544, 0, 0}, 465},
                      Rechazada{Con, u"31121899", u"18991231", {770, 771, 789}, 465},
                      Rechazada{Con, u"01012100", u"21000101", {770, 771, 789}, 465},
                      Rechazada{Ins, u"31042015", u"20150431", {777, 0, 0}, 465},
                      Rechazada{Ins, u"31121899", u"18991231", {774, 771, 789}, 465},
                      Rechazada{Ins, u"01012100", u"21000101", {774, 771, 789}, 465}));

TEST_F(Fechas, LasPalabrasDelMensajeEnLosDosIdiomas) {
    abrirAbiertas(Mod);
    avisos.Espera(QStringLiteral("La fecha de modificación debe ser anterior al 31/12/2099 y "
                                 "posterior al 01/01/1900."),
                  QStringLiteral("Fecha de modificación no válida"));
    rellenarCampo(Mod, QStringLiteral("01012100"));
    avisos.Verificar();
    abrirAbiertas(Dec);
    avisos.Espera(QStringLiteral("La fecha de la declaración debe estar comprendida entre el "
                                 "01/01/1990 y el 31/12/2099."),
                  QStringLiteral("Fecha de la declaración no válida"));
    rellenarCampo(Dec, QStringLiteral("01012100"));
}

class FechaVaciada : public Fechas, public ::testing::WithParamInterface<const char16_t*> {};

TEST_P(FechaVaciada, LaMascaraVaciaEsCero) {
    abrirAbiertas(GetParam());
    rellenarCampo(GetParam(), QStringLiteral("01012015"));
    ASSERT_EQ(valor(GetParam()), 20150101);
    estado.ModificacionesPendientes = false;
    rellenarCampo(GetParam(), QString());
    EXPECT_EQ(valor(GetParam()), 0);
    EXPECT_TRUE(estado.ModificacionesPendientes);
    EXPECT_EQ(fecha(GetParam()), QStringLiteral("__/__/____"));
}
INSTANTIATE_TEST_SUITE_P(Campos, FechaVaciada, ::testing::Values(Mod, Con, Ins));

TEST_F(Fechas, LaDeDeclaracionNoSeVacia) {
    abrirAbiertas(Dec);
    rellenarCampo(Dec, QStringLiteral("01012015"));
    avisos.Espera(QStringLiteral("La fecha de la declaración debe estar comprendida entre el "
                                 "01/01/1990 y el 31/12/2099."),
                  estado.Texto(517));
    sinCambios([&] { rellenarCampo(Dec, QString()); });
    EXPECT_EQ(foco(), q(Dec));
}

TEST_F(Fechas, LaDeModificacionAjustaLasRespuestasYElVigor) {
    abrirAbiertas(Mod);
    d.apartado4.IVACUOADU = d.apartado4.IVAAGENCIAS = QStringLiteral("O");
    rellenarCampo(Mod, QStringLiteral("31122014"));
    EXPECT_EQ(g.FECHAVIGOR, 20141231);
    EXPECT_TRUE(d.apartado4.IVACUOADU.vacio());
    EXPECT_FALSE(d.apartado4.IVAAGENCIAS.vacio());
    d.apartado4.IVACUOADU = QStringLiteral("O");
    rellenarCampo(Mod, QStringLiteral("01012015"));
    EXPECT_EQ(g.FECHAVIGOR, 20150101);
    EXPECT_FALSE(d.apartado4.IVACUOADU.vacio());
    EXPECT_TRUE(d.apartado4.IVAAGENCIAS.vacio());
}

}  // namespace
}  // namespace padral::pruebas
