// What implies and what excludes what in section 5, against every combination of yes and no, and of
// blanks where these tell something else than a no.

#include <bit>

#include "sections/section5_cases.h"

namespace padral::pruebas {
namespace {

/// What a yes requires and what it excludes. A required answer is a yes unless it says "=N";
/// with "=S?" it may be blank, too.
struct FilaImplica {
    const char16_t* si;
    const char16_t* exige;
    const char16_t* excluye;
    bool soloAntes2015 = false;
};

constexpr const char16_t* Metodo = u"SOCIEDADES EXENTASOCI ADMINISTRACIONES";

const FilaImplica Filas[] = {
    {u"SOCIEDADES", u"",
     u"EXENTASOCI IRPFDIRECTA IRPFOBJETIVA IRPFDIRECTSIMPLIF RECARGO SIMPLIF NORECARGO"},
    {u"ADMINISTRACIONES", u"",
     u"IRPFDIRECTA IRPFOBJETIVA IRPFDIRECTSIMPLIF RECARGO SIMPLIF NORECARGO"},
    {u"EXENTASOCI", u"",
     u"SOCIEDADES ART117 COOPERATIVA IRPFDIRECTA IRPFOBJETIVA IRPFDIRECTSIMPLIF RECARGO SIMPLIF "
     u"NORECARGO"},
    {u"ART117", u"SOCIEDADES", u"EXENTASOCI COOPERATIVA"},
    {u"COOPERATIVA", u"SOCIEDADES", u"EXENTASOCI ART117"},
    {u"CONSOLIDACION", u"SOCIEDADES", u""},
    {u"DOMINANTE", u"SOCIEDADES CONSOLIDACION=S?", u""},
    {u"IRPFDIRECTA", u"", Metodo},
    {u"IRPFOBJETIVA", u"", Metodo},
    {u"IRPFDIRECTSIMPLIF", u"", Metodo},
    {u"RECARGO", u"IVA", u"SOCIEDADES EXENTASOCI ADMINISTRACIONES"},
    {u"SIMPLIF", u"IVA", u"SOCIEDADES EXENTASOCI ADMINISTRACIONES"},
    {u"AGENCIASOPERACION", u"IVA", u"AGENCIASGLOBAL", true},
    {u"AGENCIASGLOBAL", u"IVA", u"AGENCIASOPERACION", true},
    {u"BIENESUSADOS", u"IVA", u"BIENESMARGEN"},
    {u"BIENESMARGEN", u"IVA", u"BIENESUSADOS"},
    {u"NORECARGO", u"IVA=N", u"SOCIEDADES EXENTASOCI ADMINISTRACIONES NOCONCIERTO"},
    {u"NOAGRIC", u"IVA=N", u"NOCONCIERTO"},
    {u"NOEXENTAS", u"IVA=N", u"NOCONCIERTO"},
};
/// One of these must be yes when the yes branch is taken.
constexpr const char16_t* Regimenes =
    u"GENERAL AGENCIASOPERACION BIENESUSADOS BIENESMARGEN SIMPLIF";

/// A set of answers, one bit for each position of the record.
using Conjunto = std::uint32_t;
Conjunto bit(const QString& nombre) { return Conjunto{1} << posicion(TablaApartado5(), nombre); }
Conjunto conjunto(const char16_t* nombres) {
    Conjunto salida = 0;
    for (const QString& nombre : q(nombres).split(u' ', Qt::SkipEmptyParts)) salida |= bit(nombre);
    return salida;
}

/// The table as sets, for one side of 2015.
class Tabla {
public:
    explicit Tabla(bool antes2015) : iva_(bit(q(u"IVA"))), regimenes_(conjunto(Regimenes)) {
        if (antes2015) regimenes_ |= bit(q(u"AGENCIASGLOBAL"));
        for (const FilaImplica& fila : Filas)
            if (antes2015 || !fila.soloAntes2015) clausulas_.push_back(clausula(fila));
    }
    /// The answers outside both sets are no.
    bool vale(Conjunto si, Conjunto enBlanco = 0) const {
        if ((si & iva_) != 0 && (si & regimenes_) == 0) return false;
        return std::ranges::none_of(clausulas_, [&](const Clausula& c) {
            const Conjunto cumplidas = si | (enBlanco & c.puedeFaltar);
            return (si & c.si) != 0 && ((cumplidas & c.exige) != c.exige || (si & c.excluye) != 0);
        });
    }
    static Conjunto todos() {
        Conjunto salida = conjunto(Regimenes) | bit(q(u"AGENCIASGLOBAL")) | bit(q(u"IVA"));
        for (const FilaImplica& fila : Filas) {
            const Clausula c = clausula(fila);
            salida |= c.si | c.exige | c.excluye;
        }
        return salida;
    }

private:
    struct Clausula {
        Conjunto si, exige, excluye;
        Conjunto puedeFaltar = 0;  ///< of those required
    };
    static Clausula clausula(const FilaImplica& fila) {
        Clausula c{conjunto(fila.si), 0, conjunto(fila.excluye)};
        for (const auto& [nombre, valor] : pares(fila.exige)) {
            (valor == u"N" ? c.excluye : c.exige) |= bit(nombre);
            if (valor == u"S?") c.puedeFaltar |= bit(nombre);
        }
        return c;
    }
    Conjunto iva_, regimenes_;
    std::vector<Clausula> clausulas_;
};

/// Walks all combinations of the answers, changing one at a time; false ends the walk.
template <class Visita>
void recorrer(RespuestasApartado5 r, Conjunto campos, Visita visita) {
    std::vector<std::size_t> posiciones;
    for (std::size_t i = 0; i < TablaApartado5().size(); ++i)
        if ((campos >> i & 1U) != 0) posiciones.push_back(i);
    const QVariant valores[] = {QStringLiteral("N"), QStringLiteral("S")};
    for (const std::size_t p : posiciones) TablaApartado5()[p].escribir(r, valores[0]);
    Conjunto si = 0;
    const std::uint64_t total = std::uint64_t{1} << posiciones.size();
    for (std::uint64_t n = 1; visita(std::as_const(r), si) && n < total; ++n) {
        const std::size_t p = posiciones[static_cast<std::size_t>(std::countr_zero(n))];
        si ^= Conjunto{1} << p;
        TablaApartado5()[p].escribir(r, valores[si >> p & 1U]);
    }
}

class Busqueda5 : public testing::TestWithParam<qint32> {};
class BusquedaCaja5 : public testing::TestWithParam<qint32> {};

TEST_P(Busqueda5, DatosValidosDiceLoQueLaTabla) {
    const Tabla tabla(GetParam() < Inicio2015);
    ASSERT_EQ(std::popcount(Tabla::todos()), 22);
    std::uint64_t vistos = 0, validos = 0;
    recorrer(respuestas(u""), Tabla::todos(), [&](const RespuestasApartado5& r, Conjunto si) {
        ++vistos;
        const bool vale = tabla.vale(si);
        if (vale) ++validos;
        if ((PrimeraReglaRota(r, GetParam()) == nullptr) == vale) return true;
        ADD_FAILURE() << std::hex << si << (vale ? " is valid" : " is not valid");
        return false;
    });
    EXPECT_EQ(vistos, std::uint64_t{1} << 22);
    EXPECT_GT(validos, 0U);
}

TEST_P(Busqueda5, ConLaConsolidacionEnBlancoTambien) {
    const Tabla tabla(GetParam() < Inicio2015);
    const Conjunto enBlanco = bit(q(u"CONSOLIDACION"));
    bool dominanteVale = false;
    recorrer(respuestas(u"CONSOLIDACION="), Tabla::todos() & ~enBlanco,
             [&](const RespuestasApartado5& r, Conjunto si) {
                 const bool vale = tabla.vale(si, enBlanco);
                 if (vale && (si & bit(q(u"DOMINANTE"))) != 0) dominanteVale = true;
                 if ((PrimeraReglaRota(r, GetParam()) == nullptr) == vale) return true;
                 ADD_FAILURE() << std::hex << si << (vale ? " is valid" : " is not valid");
                 return false;
             });
    EXPECT_TRUE(dominanteVale);
}

TEST_P(BusquedaCaja5, ExigeFechaIvaYRegimen) {
    const Conjunto regimenes = conjunto(u"GENERAL AGENCIASOPERACION BIENESUSADOS BIENESMARGEN") |
                               (GetParam() < Inicio2015 ? bit(q(u"AGENCIASGLOBAL")) : 0U);
    const Conjunto caja = bit(q(u"IVACAJA")), iva = bit(q(u"IVA"));
    const Conjunto preguntas = regimenes | bit(q(u"AGENCIASGLOBAL"));
    ASSERT_EQ(std::popcount(preguntas), 5);
    int vistos = 0;
    // Every set of regimes without an answer; the others are yes or no.
    for (Conjunto enBlanco = preguntas;; enBlanco = (enBlanco - 1) & preguntas) {
        RespuestasApartado5 r = respuestas(u"GRANEMPRESA=S");
        for (std::size_t i = 0; i < TablaApartado5().size(); ++i)
            if ((enBlanco >> i & 1U) != 0) TablaApartado5()[i].escribir(r, q(u" "));
        recorrer(r, (preguntas & ~enBlanco) | caja | iva,
                 [&](const RespuestasApartado5& una, Conjunto si) {
                     ++vistos;
                     const bool vale =
                         (si & caja) == 0 || (GetParam() >= Inicio2014 && (si & iva) != 0 &&
                                              ((si | enBlanco) & regimenes) != 0);
                     EXPECT_EQ(ValidarIntroduccionDatos(una, {}, GetParam()).valida(), vale)
                         << std::hex << si << ", blank " << enBlanco;
                     return true;
                 });
        if (enBlanco == 0) break;
    }
    EXPECT_EQ(vistos, 4 * 243);
}

INSTANTIATE_TEST_SUITE_P(Fechas, Busqueda5, testing::Values(Fin2014, Inicio2015));
INSTANTIATE_TEST_SUITE_P(Fechas, BusquedaCaja5,
                         testing::Values(Fin2013, Inicio2014, Fin2014, Inicio2015));

}  // namespace
}  // namespace padral::pruebas
