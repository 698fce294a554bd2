#pragma once
// The address block: the shape that all domiciles of the form share.

#include <QString>

namespace padral {

/// One domicile. Derived names are in the language in which they were looked up. The widths in
/// the comments are those that screens enforce; the record accepts any length.
struct BloqueDireccion {
    QString SiglasDomicilio;     ///< code of the street type, 2
    QString DescripcionSiglas;   ///< street type, derived from the code, 15
    QString NombreDomicilio;     ///< street, 30
    qint32 Numero = 0;           ///< 5 digits, 0 none
    QString Letra;               ///< 2
    QString Escalera;            ///< 2
    QString Piso;                ///< 2
    QString Mano;                ///< door, 3
    qint32 CodigoProvincia = 0;  ///< 2 digits, 0 none
    QString NombreProvincia;     ///< derived from the code, 20
    qint32 CodigoPostal = 0;     ///< 5 digits without leading zeros, 0 none
    qint32 CodigoMunicipio = 0;  ///< 3 digits, only in the territory's own province
    QString NombreMunicipio;     ///< derived from the code there, free text elsewhere, 25
    qint32 Telefono = 0;         ///< 9 digits, 0 none

    bool operator==(const BloqueDireccion&) const = default;
};

/// Code of the territory's own province: there municipalities are chosen by code, elsewhere typed.
constexpr qint32 ProvinciaPropia = 20;

/// Province of a postal code: its text without the last three characters. 20500 gives 20, 1005
/// gives 1, anything below 1000 gives 0.
constexpr qint32 ProvinciaDePostal(qint32 codigoPostal) { return codigoPostal / 1000; }

/// Whether the municipality of a postal code is stored by its code alone.
constexpr bool MunicipioSoloPorCodigo(qint32 codigoPostal) {
    return codigoPostal != 0 && ProvinciaDePostal(codigoPostal) == ProvinciaPropia;
}

}  // namespace padral
