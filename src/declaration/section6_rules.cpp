#include "declaration/section6_rules.h"

#include <algorithm>

namespace padral {

namespace {

constexpr int TituloApartado6 = 75;
constexpr int TituloFecha = 86;

constexpr struct {
    qint16 codigo;
    int fila;
} Causas[] = {{10, 0}, {11, 1}, {20, 2}, {22, 3}, {30, 4}, {31, 5}, {32, 6}, {33, 7}, {99, 8}};

constexpr AvisoRegla NoEsFecha{88, TituloFecha};
constexpr AvisoRegla FueraDeIntervalo{0, TituloFecha};
constexpr AvisoRegla SinCese{89, TituloApartado6, u"", u"txtFecha"};
constexpr AvisoRegla SinDescripcion{90, TituloApartado6};
constexpr AvisoRegla InscripcionFuera{0, TituloApartado6, u"", u"txtInscripcion"};

bool enIntervalo(qint32 fecha, const cMDIPadral& limites) {
    return fecha >= limites.FECMIN && fecha <= limites.FECMAX;
}

/// A number that is no date has the text of none.
bool esFecha(qint32 fecha, cFecha& fechas) {
    return fechas.LongToString(fecha) != fechas.FecVacia();
}

/// The limits stand there as plain numbers.
QString textoInscripcion(const EstadoCompartido& estado) {
    const QString maxima = QString::number(estado.mdi.FECMAX);
    const QString minima = QString::number(estado.mdi.FECMIN);
    return estado.SegunIdioma(estado.Texto(765) + maxima + estado.Texto(812) + minima,
                              QStringLiteral("Inskripzio data ezin da izan ") + maxima +
                                  QStringLiteral(" baino lehenagokoa eta ") + minima +
                                  QStringLiteral(" baino gerokoagoa"));
}

}  // namespace

int ObtenerListIndex(qint16 causa) {
    const auto* const hallada =
        std::ranges::find_if(Causas, [=](const auto& c) { return c.codigo == causa; });
    return hallada == std::end(Causas) ? -1 : hallada->fila;
}

bool EsDescripcionDe(const DatosApartado6& apartado, const QString& descripcion) {
    const decltype(apartado.DESCRIPCIONCAUSA) cortada(descripcion.trimmed());
    return cortada.recortado().compare(apartado.DESCRIPCIONCAUSA.recortado(),
                                       Qt::CaseInsensitive) == 0;
}

Revision FechaEnElIntervalo(qint32 fecha, EstadoCompartido& estado) {
    const auto& limites = estado.mdi;
    if (enIntervalo(fecha, limites)) return {};
    return {{FueraDeIntervalo},
            estado.Texto(652) + estado.fecha.LongToString(limites.FECMIN) + estado.Texto(653) +
                estado.fecha.LongToString(limites.FECMAX) + estado.Texto(654)};
}

Revision ValidaFecha(const QString& texto, EstadoCompartido& estado) {
    if (!estado.fecha.EsFecha(texto)) return {{NoEsFecha}};
    return FechaEnElIntervalo(estado.fecha.StringToLong(texto), estado);
}

Revision Validaciones(const DatosApartado6& apartado, EstadoCompartido& estado) {
    if (apartado.CAUSA == 0) return {};
    if (apartado.FECHACESE == 0) return {{SinCese}};
    Revision revision = ValidaFecha(estado.fecha.LongToString(apartado.FECHACESE), estado);
    if (!revision.valida()) return revision;
    if (apartado.DESCRIPCIONCAUSA.vacio()) revision.avisos.push_back(SinDescripcion);
    const qint32 inscripcion = apartado.FechaInscripcion;
    if (inscripcion == 0 || InscripcionIlegible(apartado, estado)) return revision;
    if (enIntervalo(inscripcion, estado.mdi)) return revision;
    revision.avisos.push_back(InscripcionFuera);
    revision.compuesto = textoInscripcion(estado);
    return revision;
}

bool InscripcionIlegible(const DatosApartado6& apartado, EstadoCompartido& estado) {
    return apartado.CAUSA != 0 && apartado.FechaInscripcion != 0 &&
           !esFecha(apartado.FechaInscripcion, estado.fecha);
}

Revision ValidarIntroduccionDatos(const DatosApartado6& apartado) {
    if (apartado.DESCRIPCIONCAUSA.vacio()) return {{SinDescripcion}};
    return {};
}

}  // namespace padral
