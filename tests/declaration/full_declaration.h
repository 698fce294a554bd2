#pragma once
// A declaration with a value in every field of every section, each different.

#include "declaration/declaration.h"
#include "declaration/section_boxes.h"
#include "sections/record_checks.h"

namespace padral::pruebas {

template <class R>
void rellenar(R& registro, std::span<const Columna<R>> tabla) {
    CargarDeFila<R>(registro, tabla, filaDistinta(tabla));
}

/// General data that break no rule: a company that starts, signed by itself.
inline void generalesValidos(cDatosGenerales& g) {
    g.DNI = QStringLiteral("A12345674");
    g.NOMBRE = QStringLiteral("NOMBRE");
    g.FECHADECLARACION = 20150110;
    g.Causa1 = QStringLiteral("I");
    g.ElMismo = QStringLiteral("X");
    g.FirmaEnCalidadDe = QStringLiteral("EL MISMO");
}

/// All 18 values of the general data, those that exclude each other included.
inline void rellenarGenerales(cDatosGenerales& g) {
    generalesValidos(g);
    g.NumeroArchivo = QStringLiteral("REF-1");
    g.FechaConstitucion = 20010203;
    g.FechaInscripcion = 20020304;
    g.FechaModificacion(20150405);
    g.Causa2 = QStringLiteral("E");
    g.DNIAnterior = QStringLiteral("B12345674");
    g.NombreAnterior = QStringLiteral("ANTERIOR");
    g.MotivoCambio = 31;
    g.DNIRepresentante = QStringLiteral("12345678Z");
    g.NombreRepresentante = QStringLiteral("REPRESENTANTE");
}

/// Answers that a marked section 5 keeps: "S" and "N" in turn.
inline void rellenarApartado5(cApartado5& a) {
    bool si = false;
    for (const auto& c : TablaApartado5())
        c.escribir(a, (si = !si) ? QStringLiteral("S") : QStringLiteral("N"));
}

/// Fills a section and marks it as accepted, with changes pending.
inline void llenar(cDeclaraciones& d, Apartado apartado) {
    switch (apartado) {
        case Apartado::Dos:
            rellenar<DatosApartado2>(d.apartado2, TablaApartado2());
            d.apartado2.Lleno = d.apartado2.Modificaciones = true;
            return d.apartado2.RellenarTablaAuxiliar();
        case Apartado::Tres:
            rellenar<DatosApartado3>(d.apartado3, TablaApartado3());
            // A heading and a legal form in free words, which the catalogue does not replace.
            d.apartado3.ActivEcon = ActividadSinEpigrafe;
            d.apartado3.CodigoFormaJuridica = FormaJuridicaOtra;
            d.apartado3.Lleno = d.apartado3.Modificaciones = true;
            return d.apartado3.RellenarTablaAuxiliar();
        case Apartado::Cuatro:
            rellenar<DatosApartado4>(d.apartado4, TablaApartado4());
            d.apartado4.Lleno = d.apartado4.MODIFAPARTADO4 = true;
            return d.apartado4.GuardarDatosAuxiliares();
        case Apartado::Cinco:
            rellenarApartado5(d.apartado5);
            d.apartado5.APARTADO5LLENO = d.apartado5.MODIFAPARTADO5 = true;
            return d.apartado5.GuardarDatosAuxiliares();
        case Apartado::Seis:
            rellenar<DatosApartado6>(d.apartado6, TablaApartado6());
            d.apartado6.Lleno = d.apartado6.MODIFAPARTADO6 = true;
            return d.apartado6.GuardarDatosAuxiliares();
        case Apartado::Siete:
            rellenar<DatosApartado7>(d.apartado7, TablaApartado7());
            d.apartado7.Lleno = d.apartado7.Modificaciones = true;
            return d.apartado7.GuardarDatosAuxiliares();
        case Apartado::AnexoII:
            rellenar<DatosAnexoII>(d.anexoII, TablaAnexoII());
            d.anexoII.Lleno = d.anexoII.Modificaciones = true;
            return d.anexoII.RellenarTablaAuxiliar();
        case Apartado::AnexoI:
            break;
    }
}

inline constexpr std::array SeccionesConRegistro = {
    Apartado::Dos,  Apartado::Tres,  Apartado::Cuatro, Apartado::Cinco,
    Apartado::Seis, Apartado::Siete, Apartado::AnexoII};

inline void llenarTodo(cDeclaraciones& d) {
    rellenarGenerales(d.general);
    for (const auto apartado : SeccionesConRegistro) llenar(d, apartado);
}

/// The store row of a section.
inline Fila filaDe(const cDeclaraciones& d, Apartado apartado) {
    switch (apartado) {
        case Apartado::Dos:
            return d.apartado2.ObtenerDatos();
        case Apartado::Tres:
            return d.apartado3.ObtenerDatos();
        case Apartado::Cuatro:
            return d.apartado4.ObtenerDatos();
        case Apartado::Cinco:
            return d.apartado5.ObtenerDatos();
        case Apartado::Seis:
            return d.apartado6.ObtenerDatos();
        case Apartado::Siete:
            return d.apartado7.ObtenerDatos();
        case Apartado::AnexoII:
            return d.anexoII.ObtenerDatos();
        case Apartado::AnexoI:
            break;
    }
    return {};
}

inline bool lleno(const cDeclaraciones& d, Apartado apartado) {
    return CasillaDe(apartado).lleno(d);
}

/// The changed flag of a section.
inline bool modificado(const cDeclaraciones& d, Apartado apartado) {
    switch (apartado) {
        case Apartado::Dos:
            return d.apartado2.Modificaciones;
        case Apartado::Tres:
            return d.apartado3.Modificaciones;
        case Apartado::Cuatro:
            return d.apartado4.MODIFAPARTADO4;
        case Apartado::Cinco:
            return d.apartado5.MODIFAPARTADO5;
        case Apartado::Seis:
            return d.apartado6.MODIFAPARTADO6;
        case Apartado::Siete:
            return d.apartado7.Modificaciones;
        case Apartado::AnexoII:
            return d.anexoII.Modificaciones;
        case Apartado::AnexoI:
            break;
    }
    return false;
}

/// What Cancel in the section's screen does: the auxiliary copy comes back.
inline void recuperarCopia(cDeclaraciones& d, Apartado apartado) {
    switch (apartado) {
        case Apartado::Dos:
            return d.apartado2.ObtenerDatosTablaAuxiliar();
        case Apartado::Tres:
            return d.apartado3.ObtenerDatosTablaAuxiliar();
        case Apartado::Cuatro:
            return d.apartado4.RecuperarDatosAuxiliares();
        case Apartado::Cinco:
            return d.apartado5.RecuperarDatosAuxiliares();
        case Apartado::Seis:
            return d.apartado6.RecuperarDatosAuxiliares();
        case Apartado::Siete:
            return d.apartado7.RecuperarDatosAuxiliares();
        case Apartado::AnexoII:
            return d.anexoII.ObtenerDatosTablaAuxiliar();
        case Apartado::AnexoI:
            break;
    }
}

}  // namespace padral::pruebas
