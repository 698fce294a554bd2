// The rules of section 6: the interval of dates, the causes and their rows, what leaving asks for.

#include "declaration/section6_rules.h"

#include "declaration/declaration_fixture.h"
#include "sections/tax_changes.h"

namespace padral::pruebas {
namespace {

const AvisoEsperado NoEsFecha{88, 86};
const AvisoEsperado FueraDeIntervalo{0, 86};
const AvisoEsperado SinCese{89, 75, u"", u"txtFecha"};
const AvisoEsperado SinDescripcion{90, 75};
const AvisoEsperado InscripcionFuera{0, 75, u"", u"txtInscripcion"};

class Reglas6 : public ConDeclaracion {
protected:
    void SetUp() override { ponerLimites(19000101, 20991231); }
    void ponerLimites(qint32 minima, qint32 maxima) {
        estado.mdi.FECMIN = minima;
        estado.mdi.FECMAX = maxima;
    }
    static DatosApartado6 datos(qint32 cese, qint16 causa, const char16_t* descripcion,
                                qint32 inscripcion = 0) {
        DatosApartado6 r;
        r.FECHACESE = cese;
        r.CAUSA = causa;
        r.DESCRIPCIONCAUSA = q(descripcion);
        r.FechaInscripcion = inscripcion;
        return r;
    }
};

TEST_F(Reglas6, CadaCausaTieneSuFilaEnLaLista) {
    const std::pair<int, int> casos[] = {
        {10, 0},  {11, 1},  {20, 2},  {22, 3},   {30, 4},   {31, 5},    {32, 6},  {33, 7},
        {99, 8},  {21, -1}, {0, -1},  {1, -1},   {9, -1},   {12, -1},   {19, -1}, {23, -1},
        {29, -1}, {34, -1}, {98, -1}, {100, -1}, {-10, -1}, {32767, -1}};
    for (const auto& [causa, fila] : casos)
        EXPECT_EQ(ObtenerListIndex(static_cast<qint16>(causa)), fila) << causa;
}

TEST_F(Reglas6, LaDescripcionSeComparaCortadaYSinMayusculas) {
    const struct {
        const char16_t *guardada, *elegida;
        bool misma;
    } casos[] = {
        {u"FUSION", u"FUSION", true},
        {u"FUSION", u"  FUSION ", true},
        {u" FUSION", u"FUSION", true},
        {u"Otras causas", u"OTRAS CAUSAS", true},
        {u"Jubilación", u"JUBILACIÓN", true},
        {u"FUSION", u"FUSIO", false},
        {u"FUSION", u"FUSIONES", false},
        {u"FUSION", u"ESCISION", false},
        {u"", u"", true},
        {u"", u"   ", true},
        {u"", u"FUSION", false},
        {u"FUSION", u"", false},
        {u"CESE DE LA ACTIVIDAD", u"CESE DE LA ACTIVIDAD POR JUBILACION", true},
        {u"CESE DE LA ACTIVIDAD POR JUBILACION", u"CESE DE LA ACTIVIDADES", true},
        {u"CESE DE LA ACTIVIDA", u"CESE DE LA ACTIVIDAD POR JUBILACION", false},
        {u"BESTE ARRAZOI BATZUK", u"Beste arrazoi batzuk", true},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(s(caso.guardada) + "/" + s(caso.elegida));
        EXPECT_EQ(EsDescripcionDe(datos(0, 0, caso.guardada), q(caso.elegida)), caso.misma);
    }
}

struct Intervalo {
    qint32 minima, maxima, fecha;
    bool dentro;
};
constexpr Intervalo Intervalos[] = {
    {19000101, 20991231, 19000101, true},  {19000101, 20991231, 20991231, true},
    {19000101, 20991231, 18991231, false}, {19000101, 20991231, 21000101, false},
    {19000101, 20991231, 20150615, true},  {19000101, 20991231, 0, false},
    {19000101, 20991231, -1, false},       {20100615, 20150320, 20100615, true},
    {20100615, 20150320, 20100614, false}, {20100615, 20150320, 20150320, true},
    {20100615, 20150320, 20150321, false},
};

TEST_F(Reglas6, LaFechaEstaEntreLosLimitesIncluidos) {
    for (const auto& caso : Intervalos) {
        SCOPED_TRACE(caso.fecha);
        ponerLimites(caso.minima, caso.maxima);
        const Revision revision = FechaEnElIntervalo(caso.fecha, estado);
        comprobarAvisos(revision,
                        caso.dentro ? std::vector<AvisoEsperado>{} : std::vector{FueraDeIntervalo});
        EXPECT_EQ(revision.compuesto.isEmpty(), caso.dentro);
    }
}

TEST_F(Reglas6, ElMensajeDiceElIntervalo) {
    EXPECT_EQ(FechaEnElIntervalo(0, estado).compuesto,
              q(u"La fecha introducida debe estar en el intervalo 01/01/1900 y 31/12/2099."));
    ponerLimites(20100615, 20150320);
    EXPECT_EQ(FechaEnElIntervalo(0, estado).compuesto,
              q(u"La fecha introducida debe estar en el intervalo 15/06/2010 y 20/03/2015."));
    enEuskera();
    EXPECT_EQ(FechaEnElIntervalo(0, estado).compuesto,
              q(u"Data 2010/06/15 eta 2015/03/20 bitartean egongo da."));
}

TEST_F(Reglas6, ElTextoEsUnaFechaDelIntervalo) {
    const struct {
        const char16_t *castellano, *euskera;
        std::vector<AvisoEsperado> avisos;
    } casos[] = {
        {u"01/01/1900", u"1900/01/01", {}},
        {u"31/12/2099", u"2099/12/31", {}},
        {u"29/02/2016", u"2016/02/29", {}},
        {u"29/02/2000", u"2000/02/29", {}},
        {u"31/12/1899", u"1899/12/31", {FueraDeIntervalo}},
        {u"01/01/2100", u"2100/01/01", {FueraDeIntervalo}},
        {u"01/01/1000", u"1000/01/01", {FueraDeIntervalo}},
        {u"29/02/2015", u"2015/02/29", {NoEsFecha}},
        {u"29/02/1900", u"1900/02/29", {NoEsFecha}},
        {u"31/04/2015", u"2015/04/31", {NoEsFecha}},
        {u"32/01/2015", u"2015/01/32", {NoEsFecha}},
        {u"01/13/2015", u"2015/13/01", {NoEsFecha}},
        {u"00/00/0000", u"0000/00/00", {NoEsFecha}},
        {u"31/12/0999", u"0999/12/31", {NoEsFecha}},
        {u"01/0_/2015", u"2015/0_/01", {NoEsFecha}},
        {u"1_/__/____", u"2___/__/__", {NoEsFecha}},
        {u"__/__/____", u"____/__/__", {FueraDeIntervalo}},
    };
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        for (const auto& caso : casos) {
            SCOPED_TRACE(s(caso.castellano));
            comprobarAvisos(ValidaFecha(q(euskera ? caso.euskera : caso.castellano), estado),
                            caso.avisos);
        }
    }
}

TEST_F(Reglas6, SinDescripcionNoSeSale) {
    const std::pair<const char16_t*, bool> casos[] = {{u"", false},
                                                      {u" ", false},
                                                      {u"                    ", false},
                                                      {u"A", true},
                                                      {u"   A", true}};
    for (const auto& [descripcion, vale] : casos)
        for (const qint16 causa : std::initializer_list<qint16>{0, 10, 99})
            comprobarAvisos(ValidarIntroduccionDatos(datos(20150331, causa, descripcion)),
                            vale ? std::vector<AvisoEsperado>{} : std::vector{SinDescripcion});
    comprobarAvisos(ValidarIntroduccionDatos(datos(0, 0, u"FUSION")), {});
}

struct Caso {
    DatosApartado6 datos;
    std::vector<AvisoEsperado> avisos;
};

TEST_F(Reglas6, ValidacionesEnSuOrden) {
    const std::vector<Caso> casos = {
        {datos(20150331, 10, u"CESE DE ACTIVIDAD"), {}},
        {datos(20150331, 21, u"CAUSA SIN FILA"), {}},
        {datos(19000101, 10, u"CESE"), {}},
        {datos(20991231, 10, u"CESE"), {}},
        {datos(18991231, 10, u"CESE"), {FueraDeIntervalo}},
        {datos(21000101, 10, u"CESE"), {FueraDeIntervalo}},
        // The text of a number that is no date is the empty one.
        {datos(20150230, 10, u"CESE"), {FueraDeIntervalo}},
        {datos(-1, 10, u"CESE"), {FueraDeIntervalo}},
        {datos(0, 10, u"CESE"), {SinCese}},
        {datos(0, -1, u"CESE"), {SinCese}},
        // A wrong date of cessation ends the check.
        {datos(0, 99, u"", 21000101), {SinCese}},
        {datos(18991231, 99, u"", 21000101), {FueraDeIntervalo}},
        // A missing description does not.
        {datos(20150331, 10, u""), {SinDescripcion}},
        {datos(20150331, 10, u"  ", 20150401), {SinDescripcion}},
        {datos(20150331, 10, u"", 21000101), {SinDescripcion, InscripcionFuera}},
        {datos(20150331, 10, u"CESE", 0), {}},
        {datos(20150331, 10, u"CESE", 19000101), {}},
        {datos(20150331, 10, u"CESE", 20991231), {}},
        {datos(20150331, 10, u"CESE", 18991231), {InscripcionFuera}},
        {datos(20150331, 10, u"CESE", 21000101), {InscripcionFuera}},
        // It may lie before the cessation.
        {datos(20150331, 10, u"CESE", 20150330), {}},
    };
    for (std::size_t i = 0; i < casos.size(); ++i) {
        SCOPED_TRACE(i);
        comprobarAvisos(Validaciones(casos[i].datos, estado), casos[i].avisos);
        EXPECT_FALSE(InscripcionIlegible(casos[i].datos, estado));
    }
}

TEST_F(Reglas6, SinCausaNoSeCompruebaNada) {
    for (const auto& r :
         {datos(0, 0, u""), datos(18991231, 0, u""), datos(20150331, 0, u"CESE", 21000101),
          datos(20150331, 0, u"CESE", 20150230)}) {
        comprobarAvisos(Validaciones(r, estado), {});
        EXPECT_FALSE(InscripcionIlegible(r, estado));
    }
}

TEST_F(Reglas6, UnaInscripcionQueNoEsFechaNoTieneMensaje) {
    for (const qint32 fecha : {20150230, 20151301, 18990230, 21000431, 99999999, 1, -20150401}) {
        const auto r = datos(20150331, 10, u"CESE", fecha);
        comprobarAvisos(Validaciones(r, estado), {});
        EXPECT_TRUE(InscripcionIlegible(r, estado)) << fecha;
        comprobarAvisos(Validaciones(datos(20150331, 10, u"", fecha), estado), {SinDescripcion});
        comprobarAvisos(Validaciones(datos(0, 10, u"CESE", fecha), estado), {SinCese});
    }
}

TEST_F(Reglas6, ElMensajeDeLaInscripcionDaLosNumerosDeLosLimites) {
    const auto r = datos(20150331, 10, u"CESE", 21000101);
    EXPECT_EQ(Validaciones(r, estado).compuesto,
              q(u"La fecha de inscripción en el registro no puede ser posterior a 20991231 ni "
                u"anterior a 19000101"));
    enEuskera();
    EXPECT_EQ(Validaciones(r, estado).compuesto,
              q(u"Inskripzio data ezin da izan 20991231 baino lehenagokoa eta 19000101 baino "
                u"gerokoagoa"));
    ponerLimites(20100615, 20150401);
    EXPECT_EQ(Validaciones(r, estado).compuesto,
              q(u"Inskripzio data ezin da izan 20150401 baino lehenagokoa eta 20100615 baino "
                u"gerokoagoa"));
}

TEST_F(Reglas6, ElMensajeDelCeseDaElIntervalo) {
    EXPECT_EQ(Validaciones(datos(21000101, 10, u"CESE"), estado).compuesto,
              q(u"La fecha introducida debe estar en el intervalo 01/01/1900 y 31/12/2099."));
}

}  // namespace
}  // namespace padral::pruebas
