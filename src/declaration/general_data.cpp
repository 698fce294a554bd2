#include "declaration/general_data.h"

#include <array>

#include "core/field_rules.h"

namespace padral {

namespace {

constexpr qsizetype PosicionMotivo = 11;
constexpr qsizetype PosicionBanderas = 12;
constexpr qsizetype PosicionFechaModificacion = 13;
constexpr qsizetype PosicionFirma = 16;

using DG = DatosGeneralesStore;

/// Positions that are a plain member; key, flags and date of change are handled by themselves.
struct Posicion {
    qsizetype indice;
    Columna<DG> columna;
};
constexpr std::array<Posicion, 15> Posiciones = {{
    {1, columna<DG, &DG::DNI>(u"DNI")},
    {2, columna<DG, &DG::NOMBRE>(u"NOMBRE")},
    {3, columna<DG, &DG::NumeroArchivo>(u"NumeroArchivo")},
    {4, columna<DG, &DG::FECHADECLARACION>(u"FECHADECLARACION")},
    {5, columna<DG, &DG::FechaConstitucion>(u"FechaConstitucion")},
    {6, columna<DG, &DG::FechaInscripcion>(u"FechaInscripcion")},
    {7, columna<DG, &DG::Causa1>(u"Causa1")},
    {8, columna<DG, &DG::Causa2>(u"Causa2")},
    {9, columna<DG, &DG::DNIAnterior>(u"DNIAnterior")},
    {10, columna<DG, &DG::NombreAnterior>(u"NombreAnterior")},
    {11, columna<DG, &DG::MotivoCambio>(u"MotivoCambio")},
    {14, columna<DG, &DG::DNIRepresentante>(u"DNIRepresentante")},
    {15, columna<DG, &DG::NombreRepresentante>(u"NombreRepresentante")},
    {16, columna<DG, &DG::FirmaEnCalidadDe>(u"FirmaEnCalidadDe")},
    {17, columna<DG, &DG::ElMismo>(u"ElMismo")},
}};
constexpr qsizetype NumPosiciones = 18;

/// The flags in the order of the eight characters of element 12.
constexpr std::array<QString DG::*, 8> Banderas = {&DG::Apartado2, &DG::Apartado3, &DG::Apartado4,
                                                   &DG::Apartado5, &DG::Apartado6, &DG::Apartado7,
                                                   &DG::AnexoI,    &DG::AnexoII};

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
