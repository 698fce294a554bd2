#include "declaration/general_data.h"

#include <array>

#include "core/field_rules.h"

namespace padral {

namespace {

constexpr qsizetype PosicionMotivo = 11;
constexpr qsizetype PosicionBanderas = 12;
constexpr qsizetype PosicionFechaModificacion = 13;
constexpr qsizetype PosicionFirma = 16;

using D = DatosGeneralesStore;

/// Positions that are a plain member; key, flags and date of change are handled by themselves.
struct Posicion {
    qsizetype indice;
    Columna<D> columna;
};
constexpr std::array<Posicion, 15> Posiciones = {{
    {1, columna<D, &D::DNI>(u"DNI")},
    {2, columna<D, &D::NOMBRE>(u"NOMBRE")},
    {3, columna<D, &D::NumeroArchivo>(u"NumeroArchivo")},
    {4, columna<D, &D::FECHADECLARACION>(u"FECHADECLARACION")},
    {5, columna<D, &D::FechaConstitucion>(u"FechaConstitucion")},
    {6, columna<D, &D::FechaInscripcion>(u"FechaInscripcion")},
    {7, columna<D, &D::Causa1>(u"Causa1")},
    {8, columna<D, &D::Causa2>(u"Causa2")},
    {9, columna<D, &D::DNIAnterior>(u"DNIAnterior")},
    {10, columna<D, &D::NombreAnterior>(u"NombreAnterior")},
    {11, columna<D, &D::MotivoCambio>(u"MotivoCambio")},
    {14, columna<D, &D::DNIRepresentante>(u"DNIRepresentante")},
    {15, columna<D, &D::NombreRepresentante>(u"NombreRepresentante")},
    {16, columna<D, &D::FirmaEnCalidadDe>(u"FirmaEnCalidadDe")},
    {17, columna<D, &D::ElMismo>(u"ElMismo")},
}};
constexpr qsizetype NumPosiciones = 18;

/// The flags in the order of the eight characters of element 12.
constexpr std::array<QString D::*, 8> Banderas = {&D::Apartado2, &D::Apartado3, &D::Apartado4,
                                                  &D::Apartado5, &D::Apartado6, &D::Apartado7,
                                                  &D::AnexoI,    &D::AnexoII};

}  // namespace

void cDatosGenerales::CargarDatos(const Fila& datos, qint16 numParti) {
    for (const auto& p : Posiciones) p.columna.escribir(*this, datos.value(p.indice));
    const QString banderas = datos.value(PosicionBanderas).toString();
    for (std::size_t i = 0; i < Banderas.size(); ++i)
        this->*Banderas[i] = banderas.mid(static_cast<qsizetype>(i), 1);
    FechaModificacion(datos.value(PosicionFechaModificacion).toInt());
    // Element 17 is sent but not read: the signature itself tells.
    const bool elMismo = datos.value(PosicionFirma).toString() == FirmaElMismo;
    ElMismo = elMismo ? QStringLiteral("X") : QString();
    const QString motivo = datos.value(PosicionMotivo).toString().left(2);
    SolicitaModif = ValorNumerico(motivo) != 0 ? QStringLiteral("X") : QString();
    SolicitaNIF = Causa2.isEmpty() ? QString() : QStringLiteral("X");
    NumParti = numParti;
}

Fila cDatosGenerales::ObtenerDatos() const {
    Fila fila(NumPosiciones);
    for (const auto& p : Posiciones) fila[p.indice] = p.columna.leer(*this);
    fila[0] = declaracion_.csde;
    QString banderas;
    for (const auto bandera : Banderas)
        banderas += (this->*bandera).isEmpty() ? QStringLiteral(" ") : (this->*bandera).left(1);
    fila[PosicionBanderas] = banderas;
    fila[PosicionFechaModificacion] = fechaModificacion_;
    return fila;
}

void cDatosGenerales::InicializarDatosGenerales() {
    static_cast<DatosGeneralesStore&>(*this) = DatosGeneralesStore{};
    // Directly: the effective date keeps its last value until the screen sets it.
    fechaModificacion_ = 0;
}

void cDatosGenerales::IniciarVarGen() {
    NumParti = 0;
    declaracion_.NumParti = 0;
    declaracion_.SumaPorcen = 0;
}

}  // namespace padral
