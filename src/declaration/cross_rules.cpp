#include "declaration/cross_rules.h"

#include <QStringList>
#include <algorithm>

#include "sections/tax/section4_rules.h"
#include "sections/tax/section5_rules.h"

namespace padral {

namespace {

constexpr int TituloMarcados = 483;
constexpr int TituloPorcentajes = 381, SumaNoEs100 = 547, SumaLejosDe100 = 548;
constexpr double SumaExcesiva = 100.4;
constexpr float SumaMinima = 99.6F, SumaMaxima = 100.4F;
constexpr std::ptrdiff_t PocosParticipes = 2;

bool cuenta(const std::shared_ptr<cParticipes>& participe) {
    return participe->Modo.texto().at(0) != u'E';
}

std::ptrdiff_t numParticipes(const Participantes& participantes) {
    return std::ranges::count_if(participantes.colParticipes, cuenta);
}

/// One step of the marked sections, in their order.
struct PasoMarcado {
    QString DatosGeneralesStore::*marca;
    Revision (*comprobar)(const cDeclaraciones&);
};

/// A marked section that holds nothing gives the message.
template <int Texto>
Revision vacio(bool lleno) {
    if (lleno) return {};
    return {{{Texto, TituloMarcados}}};
}

using S = DatosGeneralesStore;
constexpr PasoMarcado PasosMarcados[] = {
    {&S::Apartado2, [](const cDeclaraciones& d) { return vacio<549>(d.apartado2.Lleno); }},
    {&S::Apartado3, [](const cDeclaraciones& d) { return vacio<550>(d.apartado3.Lleno); }},
    {&S::Apartado4, [](const cDeclaraciones& d) { return vacio<551>(d.apartado4.Lleno); }},
    {&S::Apartado4,
     [](const cDeclaraciones& d) {
         return ValidarIntroduccionDatos(d.apartado4, d.general.FECHAVIGOR);
     }},
    {&S::Apartado5,
     [](const cDeclaraciones& d) {
         return ValidarIntroduccionDatos(d.apartado5, d.apartado4, d.general.FECHAVIGOR);
     }},
    {&S::Apartado6, [](const cDeclaraciones& d) { return vacio<553>(d.apartado6.Lleno); }},
    {&S::Apartado7, [](const cDeclaraciones& d) { return vacio<554>(d.apartado7.Lleno); }},
    {&S::AnexoI, [](const cDeclaraciones& d) { return vacio<555>(d.NumParti != 0); }},
    {&S::AnexoII, [](const cDeclaraciones& d) { return vacio<725>(d.anexoII.Lleno); }},
};

const ReglaCruzada* primeraRota(std::span<const ReglaCruzada> reglas, const Cruce& cruce) {
    const auto rota =
        std::ranges::find_if(reglas, [&](const ReglaCruzada& regla) { return regla.rota(cruce); });
    return rota == reglas.end() ? nullptr : &*rota;
}

const ReglaCruzada* primeraRotaTrasLaFecha(const Cruce& cruce) {
    if (const auto* regla = primeraRota(ReglasGenerales(), cruce)) return regla;
    const bool ambos = Marcado(cruce.d.general.Apartado4) && Marcado(cruce.d.general.Apartado5);
    if (ambos)
        if (const auto* regla = primeraRota(ReglasSolicitudes(), cruce)) return regla;
    return primeraRota(ReglasFinales(), cruce);
}

ResultadoCruce fallo(const ReglaCruzada& regla, std::optional<qint32> fechaVigor) {
    return {false, {{{regla.texto, regla.titulo, u"", regla.foco}}}, fechaVigor};
}

QString avisoDeNifs(const EstadoCompartido& estado, const QString& lista) {
    return estado.SegunIdioma(
        QStringLiteral("El/los participes ") + lista + QStringLiteral(" tiene/n un NIF erróneo"),
        lista + QStringLiteral("Partaideak/ek IFZ zenbaki okerra du/te"));
}

}  // namespace

Revision ValidarApartadosMarcados(const cDeclaraciones& d) {
    for (const PasoMarcado& paso : PasosMarcados) {
        if (!Marcado(d.general.*paso.marca)) continue;
        Revision revision = paso.comprobar(d);
        if (!revision.valida()) return revision;
    }
    return {};
}

Revision ValidarNifsParticipes(const cDeclaraciones& d, const ServidorNif& valida) {
    if (!Marcado(d.general.AnexoI)) return {};
    QStringList erroneos;
    for (const auto& participe : d.participantes.colParticipes)
        if (cuenta(participe) && !valida(participe->DNI.recortado()))
            erroneos << participe->DNI.recortado();
    if (!erroneos.isEmpty())
        return {{{0, 753, u"", u"", true}}, avisoDeNifs(d.estado, erroneos.join(u','))};
    const int clase = ClasificarNif(d.general.DNI.left(1));
    const bool entidad = clase == 2 || clase == 3;
    if (entidad && numParticipes(d.participantes) < 2) return {{{754, 0}}};
    return {};
}

qint32 FechaVigorDe(const cDeclaraciones& d) {
    const QString& causa = d.general.Causa1;
    if (causa == u"M") return d.general.FechaModificacion();
    if (causa == u"C") return d.apartado6.FECHACESE;
    return d.apartado3.Lleno ? d.apartado3.FechaInicio() : 0;
}

ResultadoCruce ValidarApartados(const cDeclaraciones& d, const ServidorNif& valida) {
    Cruce cruce{d, ClasificarNif(d.general.DNI.left(1)), 0};
    if (const auto* regla = primeraRota(ReglasPrimeras(), cruce)) return fallo(*regla, {});
    if (Revision marcados = ValidarApartadosMarcados(d); !marcados.valida())
        return {false, std::move(marcados), {}};
    cruce.fechaVigor = FechaVigorDe(d);
    if (const auto* regla = primeraRotaTrasLaFecha(cruce)) return fallo(*regla, cruce.fechaVigor);
    return {true, ValidarNifsParticipes(d, valida), cruce.fechaVigor};
}

double SumaDePorcentajes(const Participantes& participantes) {
    double suma = 0;
    for (const auto& participe : participantes.colParticipes)
        if (cuenta(participe)) suma += static_cast<double>(participe->PorcenPart);
    return suma;
}

Revision ValidarPorcentajes(const Participantes& participantes) {
    const auto cuantos = numParticipes(participantes);
    if (cuantos == 0) return {};
    const double suma = SumaDePorcentajes(participantes);
    const auto simple = static_cast<float>(suma);
    const bool exacta = suma < SumaExcesiva && (cuantos > PocosParticipes || simple == 100.0F);
    if (!exacta) return {{{SumaNoEs100, TituloPorcentajes}}};
    if (cuantos > PocosParticipes && (simple < SumaMinima || simple > SumaMaxima))
        return {{{SumaLejosDe100, TituloPorcentajes}}};
    return {};
}

}  // namespace padral
