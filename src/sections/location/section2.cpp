#include "sections/location/section2.h"

namespace padral {

namespace {

using D2 = DatosApartado2;
using B = BloqueDireccion;

// The eleven stored fields of one block; the names in the row carry the block's suffix.
#define PADRAL_BLOQUE(S)                                                                      \
    columna<D2, &D2::S, &B::SiglasDomicilio>(u"SiglasDomicilio" #S),                          \
        columna<D2, &D2::S, &B::NombreDomicilio>(u"NombreDomicilio" #S),                      \
        columna<D2, &D2::S, &B::Numero>(u"Numero" #S),                                        \
        columna<D2, &D2::S, &B::Letra>(u"Letra" #S),                                          \
        columna<D2, &D2::S, &B::Escalera>(u"Escalera" #S),                                    \
        columna<D2, &D2::S, &B::Piso>(u"Piso" #S), columna<D2, &D2::S, &B::Mano>(u"Mano" #S), \
        columna<D2, &D2::S, &B::CodigoPostal>(u"CodigoPostal" #S),                            \
        columna<D2, &D2::S, &B::CodigoMunicipio>(u"CodigoMunicipio" #S),                      \
        columna<D2, &D2::S, &B::NombreMunicipio>(u"NombreMunicipio" #S),                      \
        columna<D2, &D2::S, &B::Telefono>(u"Telefono" #S)

constexpr Columna<D2> ColumnasApartado2[] = {
    PADRAL_BLOQUE(Fis),
    PADRAL_BLOQUE(Act),
    columna<D2, &D2::ElMismoAct>(u"ElMismoAct"),
    PADRAL_BLOQUE(Soc),
    columna<D2, &D2::ElMismoSoc>(u"ElMismoSoc"),
    PADRAL_BLOQUE(Not),
    columna<D2, &D2::ElMismoNot>(u"ElMismoNot"),
};
#undef PADRAL_BLOQUE

struct BloqueConMarca {
    QStringView sufijo;
    B D2::*bloque;
    QString D2::*marca;  // the fiscal block has none
};

constexpr BloqueConMarca Bloques[] = {
    {u"FIS", &D2::Fis, nullptr},
    {u"ACT", &D2::Act, &D2::ElMismoAct},
    {u"SOC", &D2::Soc, &D2::ElMismoSoc},
    {u"NOT", &D2::Not, &D2::ElMismoNot},
};

const QString SinMarca = QStringLiteral("");
const QString ConMarca = QStringLiteral("X");

const QString& alReves(const QString& marca) { return marca == ConMarca ? SinMarca : ConMarca; }

// Empties the blocks that the suffix names; `marcaDeUno` gives the mark of a single block.
template <class MarcaDeUno>
void vaciarBloques(D2& datos, QStringView sufijo, MarcaDeUno marcaDeUno) {
    const bool todos = sufijo == u"TODOS";
    for (const auto& b : Bloques) {
        if (!todos && b.sufijo != sufijo) continue;
        datos.*b.bloque = {};
        if (b.marca) datos.*b.marca = todos ? SinMarca : marcaDeUno(b);
    }
    if (todos) datos.Lleno = datos.Modificaciones = false;
}

}  // namespace

std::span<const Columna<DatosApartado2>> TablaApartado2() { return ColumnasApartado2; }

void cApartado2::InicializarApartado2(QStringView sufijo) {
    vaciarBloques(*this, sufijo,
                  [this](const BloqueConMarca& b) { return alReves(this->*b.marca); });
    if (sufijo == u"TODOS") InicializarTablaAuxiliar(sufijo);
}

void cApartado2::InicializarTablaAuxiliar(QStringView sufijo) {
    // Only the notification mark follows the record's own; the other two become "X" untested.
    vaciarBloques(auxiliar_, sufijo, [this](const BloqueConMarca& b) {
        return b.marca == &D2::ElMismoNot ? alReves(ElMismoNot) : ConMarca;
    });
}

void cApartado2::completarBloque(BloqueDireccion& bloque) const {
    bloque.DescripcionSiglas = catalogo_.ObtenerDescripcionSiglas(bloque.SiglasDomicilio);
    if (bloque.CodigoPostal != 0) bloque.CodigoProvincia = ProvinciaDePostal(bloque.CodigoPostal);
    bloque.NombreProvincia = catalogo_.ObtenerNombreProvincia(bloque.CodigoProvincia);
    if (bloque.CodigoProvincia == ProvinciaPropia)
        bloque.NombreMunicipio = catalogo_.NombreMunicipio(bloque.CodigoMunicipio);
}

void cApartado2::CargarDatos(const Fila& fila) {
    CargarDeFila<DatosApartado2>(*this, TablaApartado2(), fila);
    for (const auto& b : Bloques) completarBloque(this->*b.bloque);
    Lleno = Marcado(generales_.Apartado2);
    RellenarTablaAuxiliar();
}

Fila cApartado2::ObtenerDatos() const {
    DatosApartado2 datos = *this;
    for (const auto& b : Bloques)
        if (MunicipioSoloPorCodigo((datos.*b.bloque).CodigoPostal))
            (datos.*b.bloque).NombreMunicipio = QStringLiteral("");
    return FilaDe<DatosApartado2>(datos, TablaApartado2());
}

}  // namespace padral
