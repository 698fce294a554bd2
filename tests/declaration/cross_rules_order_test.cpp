// Several rules across sections broken at once: the first is told. What no declaration can reach.

#include <map>
#include <set>

#include "declaration/cross_rules_cases.h"

namespace padral::pruebas {
namespace {

class OrdenDeCruces : public ConCruces {
protected:
    /// Every rule that the declaration breaks, marked sections (7) included.
    std::set<int> rotas() const {
        const Cruce cruce{d, ClasificarNif(d.general.DNI.left(1)), FechaVigorDe(d)};
        std::set<int> numeros;
        const auto anotar = [&](auto reglas) {
            for (const auto& regla : reglas)
                if (regla.rota(cruce)) numeros.insert(regla.numero);
        };
        anotar(ReglasPrimeras());
        anotar(ReglasGenerales());
        if (Marcado(d.general.Apartado4) && Marcado(d.general.Apartado5))
            anotar(ReglasSolicitudes());
        anotar(ReglasFinales());
        if (!ValidarApartadosMarcados(d).valida()) numeros.insert(7);
        return numeros;
    }
    /// The number of the rule that the whole check tells, 0 none, -1 none of the table.
    int dicha() {
        const auto resultado = validar();
        if (resultado.pasa) return 0;
        if (resultado.revision.avisos.size() != 1) return -1;
        for (const auto& esperada : Esperadas)
            if (esperada.texto == resultado.revision.avisos[0].texto) return esperada.regla;
        return -1;
    }
};

/// The first case of each rule.
std::vector<CasoCruce> unoPorRegla() {
    std::map<int, CasoCruce> casos;
    for (const auto& caso : Rotas) casos.emplace(caso.regla, caso);
    std::vector<CasoCruce> salida;
    for (const auto& [regla, caso] : casos) salida.push_back(caso);
    return salida;
}

TEST_F(OrdenDeCruces, DeVariasRotasSeDiceLaDeNumeroMenor) {
    std::set<std::pair<int, int>> parejas;
    const auto comprobar = [&](const CasoCruce& primero, const CasoCruce& encima) {
        preparar(primero.base, primero.cambio);
        poner(d, encima.cambio);
        const auto numeros = rotas();
        if (numeros.empty() || *numeros.begin() == 7) return;
        EXPECT_EQ(dicha(), *numeros.begin()) << s(primero.cambio) << " + " << s(encima.cambio);
        for (const int i : numeros)
            for (const int j : numeros)
                if (i < j && i != 7 && j != 7 && j != 44 && i != 44) parejas.emplace(i, j);
    };
    for (const auto& uno : Rotas)
        for (const auto& otro : unoPorRegla()) {
            comprobar(uno, otro);
            comprobar(otro, uno);
        }
    // Of the 1035 pairs of these 46 rules. The rest exclude each other: by the class of the
    // identifier, the type, the cause or an answer that both look at, or because a change without
    // any section has no mark that the marked sections would not stop first.
    EXPECT_GE(parejas.size(), 895U);
}

TEST_F(OrdenDeCruces, CadaReglaSeAlcanza) {
    std::set<int> alcanzadas;
    for (const auto& caso : Rotas) {
        preparar(caso.base, caso.cambio);
        alcanzadas.insert(dicha());
    }
    std::set<int> todas;
    for (const auto& esperada : Esperadas)
        if (esperada.regla != 44) todas.insert(esperada.regla);
    EXPECT_EQ(alcanzadas, todas);
}

/// Every combination of the letters that a declaration's answer to a rule depends on.
template <class Accion>
void combinar(std::span<const std::pair<const char16_t*, std::vector<const char16_t*>>> campos,
              const QString& antes, const Accion& accion) {
    if (campos.empty()) return accion(antes);
    for (const char16_t* valor : campos[0].second)
        combinar(campos.subspan(1), antes + q(campos[0].first) + u'=' + q(valor) + u' ', accion);
}

using Letras = std::vector<std::pair<const char16_t*, std::vector<const char16_t*>>>;

// Rule 44 has the conditions of rule 24 and one more, the type: 24 is always told first.
TEST_F(OrdenDeCruces, La44NoSeAlcanzaPorqueLa24VaDelante) {
    const std::vector<const char16_t*> respuestas = {u"S", u"N", u"_"};
    const Letras campos = {{u"g.Apartado4", {u"X", u"_"}},
                           {u"g.Apartado5", {u"X", u""}},
                           {u"g.Causa1", {u"P", u"I", u"M", u"C", u""}},
                           {u"4.IVAEXPORTINTRA", {u"A", u"B", u"_"}},
                           {u"5.IVA", respuestas},
                           {u"5.NORECARGO", respuestas},
                           {u"5.NOAGRIC", respuestas},
                           {u"5.NOEXENTAS", respuestas}};
    int conLa44 = 0;
    // The member of an entity may leave section 5 unanswered, so that blanks get as far.
    for (const char16_t* otra : {u"6.Lleno=1", u"6.Lleno=1 " SOLO_SOCIO})
        combinar(campos, {}, [&](const QString& letras) {
            preparar(Base::Persona, otra);
            poner(d, letras.toStdU16String().c_str());
            const auto numeros = rotas();
            const bool rota = numeros.contains(44);
            conLa44 += rota ? 1 : 0;
            EXPECT_TRUE(!rota || numeros.contains(24)) << letras.toStdString();
            EXPECT_NE(dicha(), 44) << letras.toStdString();
        });
    // Types but "P", and 16 ways in which none of the four answers is "S".
    EXPECT_EQ(conLa44, 2 * 4 * 16);
}

// Rule 12 asks for a letter that the screen never writes: its box gives "X" or nothing.
TEST_F(OrdenDeCruces, La12NoSeAlcanzaConLoQueEscribeLaPantalla) {
    for (const auto& caso : Rotas) {
        if (caso.regla == 12) continue;
        for (const char16_t* casilla : {u"3.SocPat=", u"3.SocPat=X"}) {
            preparar(caso.base, caso.cambio);
            poner(d, casilla);
            EXPECT_EQ(dicha(), caso.regla) << s(caso.cambio);
        }
    }
}

// Of the marked sections, an empty section 6 is never told by what the screen writes: its mark
// comes with the type of the cessation alone, and there rule 6 is before it.
TEST_F(OrdenDeCruces, UnCeseSinApartado6LoDiceLaRegla6) {
    for (const Base base : {Base::Cese, Base::CeseSociedad, Base::CeseComunidad}) {
        preparar(base, u"6.Lleno=0");
        EXPECT_EQ(rotas(), (std::set<int>{6, 7}));
        comprobarRegla(validar(), 6);
    }
}

// Classes 0 and 2 of rules that ask for them stay as they are, but a single first letter is never
// of class 2, and an identifier that is not empty never of class 0.
TEST_F(OrdenDeCruces, LasClasesQueUnaSolaLetraDa) {
    for (char16_t letra = u' '; letra < 0x180; ++letra) {
        const int clase = ClasificarNif(QString(QChar(letra)));
        EXPECT_TRUE(clase == 1 || clase == 3 || clase == 4) << static_cast<int>(letra);
    }
}

}  // namespace
}  // namespace padral::pruebas
