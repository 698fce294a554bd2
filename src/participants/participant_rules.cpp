#include "participants/participant_rules.h"

#include <algorithm>
#include <array>

#include "core/field_rules.h"
#include "sections/location/address_block.h"

namespace padral {

namespace {

using P = DatosParticipe;
using S = ServidorNif;

constexpr int Titulo = 125;
constexpr int TituloNifParticipe = 389;
constexpr int TituloPostal = 121;
/// A postal code whose province has a single digit shows without its zero.
constexpr qsizetype CifrasPostal = 4;

bool propia(const P& p) { return p.CodigoProvincia == ProvinciaPropia; }

// As many digits as the code of the province has: 1005 and 10050 both lie in province 1.
bool postalDeOtraProvincia(const P& p) {
    const auto cifras = QString::number(p.CodigoProvincia).size();
    return ValorNumerico(QString::number(p.CodPostal).left(cifras)) != p.CodigoProvincia;
}

constexpr AvisoRegla aviso(int texto, const char16_t* foco, int titulo = Titulo) {
    return {texto, titulo, u"", foco};
}

constexpr std::array<ReglaParticipe, 12> ReglasDelParticipe = {{
    {1, [](const P& p, const S&) { return p.DNI.vacio(); }, aviso(360, u"txtDNI")},
    {2, [](const P& p, const S& valida) { return !valida(p.DNI.recortado()); },
     aviso(388, u"txtDNI", TituloNifParticipe)},
    {3, [](const P& p, const S&) { return p.NOMBRE.vacio(); }, aviso(361, u"txtNombre")},
    {4, [](const P& p, const S&) { return p.DESCRIPCIONVIA.trimmed().isEmpty(); },
     aviso(362, u"txtSiglas")},
    {5, [](const P& p, const S&) { return p.NombreVia.vacio(); }, aviso(363, u"txtDomicilio")},
    {6, [](const P& p, const S&) { return p.NombreProvincia.trimmed().isEmpty(); },
     aviso(364, u"txtCodProvincia")},
    // Where the municipalities can be picked, it is asked for by its code.
    {7, [](const P& p, const S&) { return p.NombMun.trimmed().isEmpty(); },
     aviso(365, u"txtMunicipio"), u"txtCodMunicipio"},
    {8, [](const P& p, const S&) { return QString::number(p.CodPostal).size() < CifrasPostal; },
     aviso(120, u"txtCodigoPostal", TituloPostal)},
    {9, [](const P& p, const S&) { return postalDeOtraProvincia(p); },
     aviso(366, u"txtCodigoPostal")},
    {10, [](const P& p, const S&) { return p.CodPostal % 1000 == 0; },
     aviso(367, u"txtCodigoPostal")},
    {11, [](const P& p, const S&) { return propia(p) && p.CodMun == 0; },
     aviso(368, u"txtCodMunicipio")},
    {12, [](const P& p, const S&) { return p.PorcenPart == 0; }, aviso(369, u"txtPorcentaje")},
}};

}  // namespace

std::span<const ReglaParticipe> ReglasParticipe() { return ReglasDelParticipe; }

Revision RevisarParticipe(const DatosParticipe& participe, const ServidorNif& valida) {
    const auto rota = std::ranges::find_if(ReglasDelParticipe, [&](const ReglaParticipe& regla) {
        return regla.rota(participe, valida);
    });
    if (rota == ReglasDelParticipe.end()) return {};
    AvisoRegla hallado = rota->aviso;
    if (rota->focoPropia && propia(participe)) hallado.foco = rota->focoPropia;
    return {{hallado}};
}

}  // namespace padral
