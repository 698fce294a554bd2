#include "sections/tax/section7.h"

#include <algorithm>
#include <utility>

namespace padral {

namespace {

using D7 = DatosApartado7;

struct Limite {
    static constexpr char16_t prefijo[] = u"LimSupPais";
    static constexpr auto miembro = &D7::LimSupPais;
};
struct Destino {
    static constexpr char16_t prefijo[] = u"DestRevocPais";
    static constexpr auto miembro = &D7::DestRevocPais;
};

// "LimSupPais1" and so on, made once for each answer and state.
template <class Respuesta, std::size_t I>
constexpr auto Nombre = [] {
    std::array<char16_t, std::size(Respuesta::prefijo) + 2> nombre{};
    auto fin =
        std::copy(std::begin(Respuesta::prefijo), std::end(Respuesta::prefijo) - 1, nombre.begin());
    constexpr std::size_t sufijo = I + 1;
    if (sufijo >= 10) *fin++ = static_cast<char16_t>(u'0' + sufijo / 10);
    *fin = static_cast<char16_t>(u'0' + sufijo % 10);
    return nombre;
}();

template <class Respuesta, std::size_t I>
constexpr Columna<D7> columnaDeEstado() {
    return {Nombre<Respuesta, I>.data(),
            [](const D7& d) -> QVariant { return (d.*Respuesta::miembro)[I]; },
            [](D7& d, const QVariant& v) { detalle::deVariante((d.*Respuesta::miembro)[I], v); }};
}

constexpr std::size_t NumColumnas = 2 * NumEstadosMiembros + 5;

template <std::size_t... I>
constexpr std::array<Columna<D7>, NumColumnas> todasLasColumnas(std::index_sequence<I...>) {
    std::array<Columna<D7>, NumColumnas> tabla{};
    ((tabla[2 * I] = columnaDeEstado<Limite, I>(),
      tabla[2 * I + 1] = columnaDeEstado<Destino, I>()),
     ...);
    const std::array<Columna<D7>, 5> resto = {{
        columna<D7, &D7::Agric>(u"Agric"),
        columna<D7, &D7::Exentos>(u"Exentos"),
        columna<D7, &D7::NoEmpresarios>(u"NoEmpresarios"),
        columna<D7, &D7::MasLimEuros>(u"MasLimEuros"),
        columna<D7, &D7::TributDestino>(u"TributDestino"),
    }};
    std::copy(resto.begin(), resto.end(), tabla.begin() + 2 * NumEstadosMiembros);
    return tabla;
}

constexpr auto ColumnasApartado7 = todasLasColumnas(std::make_index_sequence<NumEstadosMiembros>{});

}  // namespace

std::span<const Columna<DatosApartado7>> TablaApartado7() { return ColumnasApartado7; }

void cApartado7::InicializarApartado7() {
    const bool lleno = Lleno, modificaciones = Modificaciones;
    static_cast<DatosApartado7&>(*this) = {};
    Lleno = lleno;
    Modificaciones = modificaciones;
    GuardarDatosAuxiliares();
}

void cApartado7::ResetForNewDeclaration() {
    Lleno = Modificaciones = false;
    InicializarApartado7();
}

void cApartado7::CargarDatos(const Fila& fila) {
    CargarDeFila<DatosApartado7>(*this, TablaApartado7(), fila);
    Lleno = Marcado(generales_.Apartado7);
    GuardarDatosAuxiliares();
}

}  // namespace padral
