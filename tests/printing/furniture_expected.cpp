#include "furniture_expected.h"

#include "store/common_server.h"

namespace padral::test {
namespace {

constexpr float YCabecera = 4;

template <class Filas, class... Cuerpo>
void EsperaTextos(Trazado& trazado, float origen, const Filas& filas, Cuerpo... cuerpo) {
    for (const auto& fila : filas)
        for (const auto& texto : Textos(origen, fila, cuerpo...)) trazado.Espera(texto);
}

QString Departamento(int idioma) {
    SvrBaseComunLib::cMiscelaneos comun;
    comun.Idioma = idioma;
    return comun.HaciendaFiscalidad();
}

void EsperaDepartamento(Trazado& trazado) {
    const std::pair<QString, float> lineas[] = {
        {Departamento(1000), 19.0F},
        {Departamento(0), 21.5F},
        {SvrBaseComunLib::DireccionWebAutoridad(), 25.0F},
    };
    for (const auto& [texto, y] : lineas) {
        EXPECT_FALSE(texto.isEmpty());
        trazado.Espera({texto, X + 10, YCabecera + y - 0.35F * 0.4F * 7, 7, false, false,
                        QStringLiteral("Arial Narrow")});
    }
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
    EsperaTextos(trazado, b.origen, b.numeros, b.cuerpoNumeros);
    EsperaTextos(trazado, b.origen, b.textos);
    EsperaTextos(trazado, b.origen, b.pares);
}

void EsperaCabecera(Trazado& trazado, std::span<const FilaTexto> titulos) {
    SCOPED_TRACE("heading");
    trazado.EsperaCaja(YCabecera, {0, 0, 193, 30}, 6);
    const FilaTrazo rayas[] = {
        {59, 0, 59, 30}, {171.5F, 0, 171.5F, 30}, {171.5F, 17, 193, 17}, {171.5F, 25, 193, 25}};
    for (const auto& raya : rayas) trazado.EsperaLinea(YCabecera, raya);
    trazado.EsperaImagen(QStringLiteral("Diputacion"), X + 2, YCabecera + 3, Tamano{14, 14});
    const FilaTexto textos[] = {
        {20, 10, 0, 7, true, false, u"Kelmariako Foru Aldundia"},
        {20, 13, 0, 7, true, false, u"Diputación Foral de Kelmaria"},
        {171.5F, 18, 21.5F, 8, false, true, u"Erreferentzia zk"},
        {171.5F, 21.5F, 21.5F, 8, false, false, u"Nº Referencia"},
    };
    EsperaTextos(trazado, YCabecera, textos);
    EsperaTextos(trazado, YCabecera, titulos);
    EsperaDepartamento(trazado);
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
