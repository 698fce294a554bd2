#include "furniture_expected.h"

#include <array>

namespace padral::test {
namespace {

constexpr float YCabecera = 4;

template <class Filas, class... Cuerpo>
void EsperaTextos(Trazado& trazado, float origen, bool romana, const Filas& filas,
                  Cuerpo... cuerpo) {
    for (const auto& fila : filas) {
        const auto textos = Textos(origen, fila, cuerpo...);
        for (const auto& texto : romana ? EnRomana(textos) : textos) trazado.Espera(texto);
    }
}

/// The lines of the authority; names at `xNombres`, the others at 10.
void EsperaLineasAutoridad(Trazado& trazado, float origen, float xNombres,
                           std::array<float, 3> departamento) {
    const FilaTexto nombres[] = {
        {xNombres, 10, 0, 7, true, false, u"Kelmariako Foru Aldundia"},
        {xNombres, 13, 0, 7, true, false, u"Diputación Foral de Kelmaria"},
    };
    EsperaTextos(trazado, origen, false, nombres);
    const FilaTexto lineas[] = {
        {10, departamento[0], 0, 7, false, false, u"Ogasun eta Finantza Departamentua"},
        {10, departamento[1], 0, 7, false, false, u"Departamento de Hacienda y Finanzas"},
        {10, departamento[2], 0, 7, false, false, u"www.kelmaria.example"},
    };
    EsperaTextos(trazado, origen, false, lineas);
    trazado.EsperaImagen(QStringLiteral("Diputacion"), X + 2, origen + 3, Tamano{14, 14});
}

void EsperaNumeroImpreso(Trazado& trazado) {
    const float ancho417 = 0.20F * 32 * 3;
    trazado.Espera({QStringLiteral("417"), X + 171.5F + 21.5F / 2 - ancho417 / 2, YCabecera + 3, 32,
                    false, false, QStringLiteral("times new roman")});
}

}  // namespace

void EsperaBloque(Trazado& trazado, const BloqueEsperado& b) {
    SCOPED_TRACE(b.nombre);
    trazado.EsperaCaja(b.origen, b.marcoGrueso, 6);
    for (const auto& f : b.rayas) trazado.EsperaLinea(b.origen, f);
    for (const auto& f : b.marcos) trazado.EsperaCaja(b.origen, f, 2);
    for (const auto& f : b.grises) trazado.EsperaGris(b.origen, f);
    EsperaTextos(trazado, b.origen, b.romana, b.numeros, b.cuerpoNumeros);
    EsperaTextos(trazado, b.origen, b.romana, b.textos);
    EsperaTextos(trazado, b.origen, b.romana, b.pares);
    EsperaTextos(trazado, b.origen, b.romana, b.centrados);
}

void EsperaCabecera(Trazado& trazado, std::span<const FilaTexto> titulos) {
    SCOPED_TRACE("heading");
    trazado.EsperaCaja(YCabecera, {0, 0, 193, 30}, 6);
    const FilaTrazo rayas[] = {
        {59, 0, 59, 30}, {171.5F, 0, 171.5F, 30}, {171.5F, 17, 193, 17}, {171.5F, 25, 193, 25}};
    for (const auto& raya : rayas) trazado.EsperaLinea(YCabecera, raya);
    const FilaTexto textos[] = {
        {171.5F, 18, 21.5F, 8, false, true, u"Erreferentzia zk"},
        {171.5F, 21.5F, 21.5F, 8, false, false, u"Nº Referencia"},
    };
    EsperaTextos(trazado, YCabecera, false, textos);
    EsperaTextos(trazado, YCabecera, false, titulos);
    EsperaLineasAutoridad(trazado, YCabecera, 20, {19, 21.5F, 25});
    EsperaNumeroImpreso(trazado);
}

void EsperaAutoridad(Trazado& trazado, float origen) {
    SCOPED_TRACE("authority");
    EsperaLineasAutoridad(trazado, origen, 19, {18, 20.5F, 24});
}

BloqueEsperado IdentificacionEsperada(float origen) {
    return {"identification",
            origen,
            {0, 0, 193, 12},
            {{0, 4, 193, 4}, {0, 12, 193, 12}, {39, 4, 39, 12}},
            {{u"1", 2, 5.5F}, {u"2", 42, 5.5F}},
            {},
            {},
            {{0, 0.5F, 193, 8, true, u"IDENTIFIKAZIO DATUAK", u"DATOS IDENTIFICATIVOS"},
             {5.5F, 5.5F, 0, 8, false, u"IFZ", u"N.I.F."},
             {45, 5.5F, 0, 8, false, u"Deiturak eta izena, edo sozietatearen izena",
              u"Apellidos y Nombre, o Razón Social"}}};
}

}  // namespace padral::test
