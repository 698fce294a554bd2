// The sum of the participants' shares: 100 for one or two, near it for more.

#include "declaration/cross_rules_cases.h"

namespace padral::pruebas {
namespace {

/// Shares in single precision, and the message that they give, 0 none.
struct CasoPorcentajes {
    std::vector<float> partes;
    int texto;
    std::vector<float> borradas = {};  ///< shares of deleted participants
};

void PrintTo(const CasoPorcentajes& caso, std::ostream* salida) {
    for (const float parte : caso.partes) *salida << parte << ' ';
    if (!caso.borradas.empty()) *salida << "deleted ";
    for (const float parte : caso.borradas) *salida << parte << ' ';
}

const CasoPorcentajes Casos[] = {
    {{}, 0},
    {{}, 0, {50}},
    {{}, 0, {100.5F, 3}},
    // One or two: exactly 100.
    {{100}, 0},
    {{99.99F}, 547},
    {{99.6F}, 547},
    {{100.01F}, 547},
    {{100.39F}, 547},
    {{100.4F}, 547},
    {{200}, 547},
    {{0}, 547},
    {{50, 50}, 0},
    {{50, 49.9F}, 547},
    {{50, 49.99F}, 547},
    {{50, 50.01F}, 547},
    {{50.2F, 50.19F}, 547},
    {{50.2F, 50.2F}, 547},
    {{33.33F, 66.67F}, 0},
    {{75.82F, 24.18F}, 0},
    // In double precision these are not 100, in single precision they are.
    {{33.3F, 66.7F}, 0},
    {{95.17F, 4.83F}, 0},
    {{99.16F, 0.84F}, 0},
    {{0.1F, 99.9F}, 0},
    // Three or more: from 99.6 to below 100.4.
    {{33.3F, 33.3F, 33.3F}, 0},
    {{33.33F, 33.33F, 33.33F}, 0},
    {{33.33F, 33.33F, 33.34F}, 0},
    {{50, 25, 25}, 0},
    {{33.2F, 33.2F, 33.2F}, 0},
    {{33.2F, 33.2F, 33.19F}, 548},
    {{33.1F, 33.2F, 33.29F}, 548},
    {{30, 30, 39.6F}, 0},
    {{25, 25, 25, 24.6F}, 0},
    {{25, 25, 25, 24.59F}, 548},
    {{30, 30, 30}, 548},
    {{1, 1, 1}, 548},
    {{0, 0, 0}, 548},
    {{33.5F, 33.5F, 33.39F}, 0},
    {{33.46F, 33.46F, 33.46F}, 0},
    {{33.5F, 33.5F, 33.4F}, 547},
    {{33.47F, 33.47F, 33.47F}, 547},
    {{25.1F, 25.1F, 25.1F, 25.1F}, 547},
    {{50, 50, 50}, 547},
    // Below 99.6 in double precision, 99.6 in single precision.
    {{77.38F, 15.55F, 6.67F}, 0},
    {{19.32F, 40.59F, 39.69F}, 0},
    // These also say 99.60, but single precision is below it too.
    {{32.17F, 65.34F, 2.09F}, 548},
    // These say 100.40; in double precision the first is still below it.
    {{33.3F, 33.5F, 33.6F}, 0},
    {{93.26F, 0.65F, 6.49F}, 547},
    // Deleted participants count neither in the sum nor in the number.
    {{50, 50}, 0, {50}},
    {{50, 25}, 547, {25}},
    {{50, 49.9F}, 547, {0.1F}},
    {{50, 49.9F}, 547, {0}},
    {{100}, 0, {20, 30}},
    {{33.3F, 33.3F, 33.3F}, 0, {33.3F}},
    {{33.3F, 33.3F}, 547, {33.3F}},
};

class Porcentajes : public ConCruces, public ::testing::WithParamInterface<CasoPorcentajes> {};

TEST_P(Porcentajes, SegunLaSuma) {
    const auto& caso = GetParam();
    for (const float parte : caso.borradas)
        sumarParticipe(d, QStringLiteral("87654321X"), QStringLiteral("E"), parte);
    for (const float parte : caso.partes)
        sumarParticipe(
            d, QStringLiteral("12345678Z"),
            d.participantes.colParticipes.empty() ? QStringLiteral("A") : QStringLiteral("C"),
            parte);
    double suma = 0;
    for (const float parte : caso.partes) suma += static_cast<double>(parte);
    EXPECT_EQ(SumaDePorcentajes(d.participantes), suma);
    const auto revision = ValidarPorcentajes(d.participantes);
    comprobarAvisos(revision, caso.texto == 0 ? std::vector<AvisoEsperado>{}
                                              : std::vector<AvisoEsperado>{{caso.texto, 381}});
    EXPECT_EQ(revision.compuesto, QString());
}
INSTANTIATE_TEST_SUITE_P(Filas, Porcentajes, ::testing::ValuesIn(Casos));

/// The shares are those of the work, whatever the box of Annex I says.
TEST_F(ConCruces, LosPorcentajesNoMiranLaMarca) {
    for (const char16_t* marca : {u"", u"X"}) {
        g.AnexoI = q(marca);
        d.participantes.colParticipes.clear();
        sumarParticipe(d, QStringLiteral("12345678Z"), QStringLiteral("C"), 50);
        comprobarAvisos(ValidarPorcentajes(d.participantes), {{547, 381}});
    }
}

}  // namespace
}  // namespace padral::pruebas
