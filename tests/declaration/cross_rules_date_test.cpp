// The effective date that the rules across sections work out, and which rules read which date.

#include "declaration/cross_rules_cases.h"

namespace padral::pruebas {
namespace {

struct CasoFecha {
    const char* nombre;
    const char16_t* cambio;
    qint32 fecha;
};

void PrintTo(const CasoFecha& caso, std::ostream* salida) { *salida << s(caso.cambio); }

/// Every date that could be taken, each different.
#define TRES_FECHAS                                                              \
    u"g.FechaModificacion=20150203 6.FECHACESE=20150304 3.FechaInicio=20150405 " \
    u"g.FECHAVIGOR=20150506 "

const CasoFecha Casos[] = {
    {"Modificacion", TRES_FECHAS u"g.Causa1=M", 20150203},
    {"ModificacionSinFecha", TRES_FECHAS u"g.Causa1=M g.FechaModificacion=0", 0},
    {"ModificacionSinApartado3", TRES_FECHAS u"g.Causa1=M 3.Lleno=0 g.Apartado3=", 20150203},
    {"Cese", TRES_FECHAS u"g.Causa1=C", 20150304},
    {"CeseSinFecha", TRES_FECHAS u"g.Causa1=C 6.FECHACESE=0", 0},
    {"Inicio", TRES_FECHAS u"g.Causa1=I", 20150405},
    {"InicioSinMarca", TRES_FECHAS u"g.Causa1=I g.Apartado3=", 20150405},
    {"InicioSinDatos", TRES_FECHAS u"g.Causa1=I 3.Lleno=0 g.Apartado3=", 0},
    {"InicioSinFecha", TRES_FECHAS u"g.Causa1=I 3.FechaInicio=0", 0},
    {"Previa", TRES_FECHAS u"g.Causa1=P", 20150405},
    {"PreviaSinFecha", TRES_FECHAS u"g.Causa1=P 3.FechaInicio=0", 0},
    {"SinTipo", TRES_FECHAS u"g.Causa1=", 20150405},
    {"SinTipoNiDatos", TRES_FECHAS u"g.Causa1= 3.Lleno=0 g.Apartado3=", 0},
};

class FechaDeCruces : public ConCruces, public ::testing::WithParamInterface<CasoFecha> {};

TEST_P(FechaDeCruces, SegunElTipo) {
    preparar(Base::Cese, GetParam().cambio);
    const qint32 antes = g.FECHAVIGOR;
    EXPECT_EQ(FechaVigorDe(d), GetParam().fecha);
    const auto resultado = validar();
    comprobarRegla(resultado, 0);
    EXPECT_EQ(resultado.fechaVigor, std::optional(GetParam().fecha));
    EXPECT_EQ(g.FECHAVIGOR, antes) << "the record is left as it is";
}
INSTANTIATE_TEST_SUITE_P(Filas, FechaDeCruces, ::testing::ValuesIn(Casos),
                         [](const auto& fila) { return std::string(fila.param.nombre); });

TEST_F(ConCruces, UnaReglaAnteriorDejaLaFechaComoEstaba) {
    for (const auto& [regla, base, cambio] : Rotas) {
        preparar(base, cambio);
        EXPECT_EQ(validar().fechaVigor.has_value(), regla > 8) << s(cambio);
    }
}

TEST_F(ConCruces, LosApartadosMarcadosVienenAntesDeLaFecha) {
    preparar(Base::Persona, u"II.Lleno=0");
    EXPECT_FALSE(validar().fechaVigor.has_value());
}

/// A rule that reads a date, with the date that it reads and the one that it does not.
struct CasoLectura {
    const char* nombre;
    int regla;  ///< told or not
    bool rota;
    Base base;
    const char16_t* cambio;
};

void PrintTo(const CasoLectura& caso, std::ostream* salida) { *salida << s(caso.cambio); }

#define PIDE_33 u"4.IVASIMPLIF=A 5.Agric=S "
#define PIDE_36 u"4.IVAAGENCIAS=R "

/// Rule 33 reads the date that the check works out, rule 36 that of the general data.
const CasoLectura Lecturas[] = {
    {"Regla33_698_desde2000", 33, true, Base::Persona,
     PIDE_33 u"3.FechaInicio=20000101 g.FECHAVIGOR=19991231"},
    {"Regla33_698_antes2000", 33, false, Base::Persona,
     PIDE_33 u"3.FechaInicio=19991231 g.FECHAVIGOR=20000101"},
    {"Regla33_698_sinFecha", 33, false, Base::Persona,
     PIDE_33 u"3.FechaInicio=0 g.FECHAVIGOR=20000101"},
    {"Regla33_698_sinGenerales", 33, true, Base::Persona, PIDE_33 u"g.FECHAVIGOR=0"},
    {"Regla33_698_sinApartado3", 33, false, Base::Persona,
     PIDE_33 u"3.Lleno=0 g.Apartado3= g.FECHAVIGOR=20150401"},
    {"Regla33_698_cambioDesde2000", 33, true, Base::Modificacion,
     PIDE_33 u"g.FechaModificacion=20000101 3.FechaInicio=19991231 g.FECHAVIGOR=19991231"},
    {"Regla33_698_cambioAntes2000", 33, false, Base::Modificacion,
     PIDE_33 u"g.FechaModificacion=19991231 3.FechaInicio=20000101 g.FECHAVIGOR=20000101"},
    {"Regla33_698_ceseDesde2000", 33, true, Base::Cese,
     PIDE_33 u"5.IVA=S 6.FECHACESE=20000101 3.FechaInicio=19991231 g.FECHAVIGOR=19991231"},
    {"Regla33_698_ceseAntes2000", 33, false, Base::Cese,
     PIDE_33 u"5.IVA=S 6.FECHACESE=19991231 3.FechaInicio=20000101 g.FECHAVIGOR=20000101"},
    {"Regla36_506_antes2015", 36, true, Base::Persona,
     PIDE_36 u"3.FechaInicio=20150101 g.FECHAVIGOR=20141231"},
    {"Regla36_506_desde2015", 36, false, Base::Persona,
     PIDE_36 u"3.FechaInicio=20141231 g.FECHAVIGOR=20150101"},
    {"Regla36_506_sinFecha", 36, true, Base::Persona,
     PIDE_36 u"3.FechaInicio=20150101 g.FECHAVIGOR=0"},
    {"Regla36_506_cambioAntes2015", 36, true, Base::Modificacion,
     PIDE_36 u"g.FechaModificacion=20150101 g.FECHAVIGOR=20141231"},
    {"Regla36_506_cambioDesde2015", 36, false, Base::Modificacion,
     PIDE_36 u"g.FechaModificacion=20141231 g.FECHAVIGOR=20150101"},
};

class LecturaDeFecha : public ConCruces, public ::testing::WithParamInterface<CasoLectura> {};

TEST_P(LecturaDeFecha, LaSuya) {
    const auto& caso = GetParam();
    preparar(caso.base, caso.cambio);
    // In a cessation with I.V.A. a later rule speaks when this one does not.
    comprobarRegla(validar(), caso.rota ? caso.regla : caso.base == Base::Cese ? 46 : 0);
}
INSTANTIATE_TEST_SUITE_P(Filas, LecturaDeFecha, ::testing::ValuesIn(Lecturas),
                         [](const auto& fila) { return std::string(fila.param.nombre); });

}  // namespace
}  // namespace padral::pruebas
