#include "annex_expected.h"

#include <algorithm>
#include <cmath>

namespace padral::test {
namespace {

bool Cerca(float a, float b) { return std::fabs(a - b) < 0.002F; }

}  // namespace

BloqueEsperado CabeceraAnexoEsperada(float y, float alto, float yRaya,
                                     const std::vector<FilaEnPunto>& lineas) {
    return {.nombre = "heading",
            .origen = y,
            .marcoGrueso = {0, 0, 193, alto},
            .rayas = {{60, 0, 60, alto}, {172, 0, 172, alto}, {172, yRaya, 193, yRaya}},
            .numeros = {},
            .marcos = {},
            .textos = {},
            .pares = {},
            .centrados = lineas,
            .romana = true};
}

BloqueEsperado IdentificacionAnexoEsperada(float y) {
    return {.nombre = "identification",
            .origen = y,
            .marcoGrueso = {0, 0, 193, 14},
            .rayas = {},
            .numeros = {{u"1", 2, 5.5F}, {u"2", 40, 5.5F}},
            .marcos = {},
            .textos = {},
            .pares = {{4, 5.5F, 0, 8, false, u"IFZ", u" N.I.F."},
                      {43, 5.5F, 0, 8, false, u"Deiturak eta izena, edo sozietatearen izena",
                       u"Apellidos y nombre, o Razón Social"}},
            .romana = true};
}

Documento SinRayasFinas(const Documento& documento, int pagina, float yIdentificacion) {
    Documento resto = documento;
    const FilaTrazo rayas[] = {{0, 4, 193, 4}, {38, 4, 38, 14}};
    for (const auto& r : rayas) {
        const auto quitadas = std::erase_if(resto.operaciones, [&](const Operacion& o) {
            return o.tipo == Operacion::Linea && o.pagina == pagina && o.estado.pluma == 1 &&
                   o.color == 0x000000 && Cerca(o.desde.x, X + r.x1) &&
                   Cerca(o.desde.y, yIdentificacion + r.y1) && Cerca(o.hasta.x, X + r.x2) &&
                   Cerca(o.hasta.y, yIdentificacion + r.y2);
        });
        EXPECT_EQ(quitadas, 1U) << "fine line " << r.x1 << ", " << r.y1;
    }
    return resto;
}

qsizetype Escritos(const Documento& documento, int pagina) {
    QStringList textos = TextosDePagina(documento, pagina);
    textos.removeAll(QString());
    return textos.size();
}

}  // namespace padral::test
