// Prints the rules across sections one by one: number, message, and the tests that hold it.

#include <iomanip>
#include <iostream>
#include <map>

#include "declaration/cross_rules_cases.h"

namespace padral::pruebas {
namespace {

/// Cases of this program whose name begins with a rule's, by their suite: what breaks it and its
/// nearest valid neighbours.
struct CasosDeRegla {
    int rotas = 0, vecinas = 0;
};

std::map<int, CasosDeRegla> casosPorRegla() {
    std::map<int, CasosDeRegla> casos;
    const auto* programa = ::testing::UnitTest::GetInstance();
    for (int i = 0; i < programa->total_test_suite_count(); ++i) {
        const auto* grupo = programa->GetTestSuite(i);
        const std::string nombre = grupo->name();
        for (int j = 0; j < grupo->total_test_count(); ++j) {
            const std::string caso = grupo->GetTestInfo(j)->name();
            const auto lugar = caso.find("/Regla");
            if (lugar == std::string::npos) continue;
            auto& suyos = casos[std::stoi(caso.substr(lugar + 6))];
            if (nombre == "Filas/ReglaCruzadaRota") ++suyos.rotas;
            if (nombre.starts_with("Filas/Vecina")) ++suyos.vecinas;
        }
    }
    return casos;
}

/// Checks that are no single row, and the rule that another always comes before.
struct ComprobacionPropia {
    int regla;
    const char* mensajes;
    const char* pruebas;
};
constexpr ComprobacionPropia Propias[] = {
    {7, "by section", "Filas/PasoDeMarcados.*"},
    {8, "none: the effective date", "Filas/FechaDeCruces.*, Filas/LecturaDeFecha.*"},
    {44, "767 (never: 24 comes first)", "OrdenDeCruces.La44NoSeAlcanzaPorqueLa24VaDelante"},
    {50, "753, 754", "ParticipesCruzados.*"},
};

TEST(TablaDeCruces, SeImprimeReglaAReglaConSusPruebas) {
    const auto casos = casosPorRegla();
    const CatalogoTextos textos;
    for (int regla = 1; regla <= 50; ++regla) {
        std::cout << "rule " << std::setw(2) << regla << "  ";
        const auto* propia = std::ranges::find(Propias, regla, &ComprobacionPropia::regla);
        if (propia != std::end(Propias)) {
            std::cout << propia->mensajes << "  " << propia->pruebas << '\n';
            continue;
        }
        const auto& esperada = EsperadaDe(regla);
        const auto fila = casos.find(regla);
        ASSERT_NE(fila, casos.end()) << regla;
        std::cout << esperada.texto << "  *.*/Regla" << regla << "_" << esperada.texto
                  << "_*: " << fila->second.rotas << " break it, " << fila->second.vecinas
                  << " beside it";
        if (regla == 12) std::cout << "  (never by the screen)";
        std::cout << "  \"" << textos.Texto(esperada.texto).left(60).toStdString() << "\"\n";
        EXPECT_GT(fila->second.rotas, 0) << regla;
        EXPECT_GT(fila->second.vecinas, 0) << regla;
    }
    std::cout << "shares   547 and others  Filas/Porcentajes.*\n";
}

}  // namespace
}  // namespace padral::pruebas
