#include "declaration/general_rules.h"

#include <array>

#include "core/nif.h"

namespace padral {

namespace {

using G = cDatosGenerales;

constexpr qint16 SinCambios = 0;
constexpr qint16 ErroresAnteriores = 10;
constexpr qint16 CambioNombre = 20;
constexpr qint16 Transformacion = 30;
constexpr qint16 TransformacionSinCif = 31;

bool vacio(const QString& t) { return t.trimmed().isEmpty(); }
/// Whether a one-letter text is one of the letters.
bool en(const QString& letra, QStringView letras) {
    return letra.size() == 1 && letras.contains(letra);
}
bool conjunto(const QString& identificador, QStringView letras) {
    return !identificador.isEmpty() && letras.contains(identificador[0]);
}
int clase(const QString& identificador) { return ClasificarNif(identificador.left(1)); }
int k(const G& g) { return clase(g.DNI); }

bool saleDelGrupo(const G& g, QStringView grupo) {
    return g.MotivoCambio == Transformacion && conjunto(g.DNIAnterior, grupo) &&
           !conjunto(g.DNI, grupo);
}
bool nombreIgual(const G& g) { return !vacio(g.NombreAnterior) && g.NombreAnterior == g.NOMBRE; }
/// A change of name alone: the previous name, different, and no previous identifier.
bool noEsSoloNombre(const G& g) {
    return vacio(g.NombreAnterior) || g.NombreAnterior == g.NOMBRE || !vacio(g.DNIAnterior);
}

constexpr bool Pestana = true;

constexpr std::array<ReglaGeneral, 31> Reglas = {{
    {1, [](const G& g) { return !en(g.Causa2, u"A") && vacio(g.DNI); }, 454, 158, u"txtDNI", false},
    {2, [](const G& g) { return en(g.Causa2, u"A") && !vacio(g.DNI); }, 453, 158, u"txtDNI", false},
    {3, [](const G& g) { return en(g.Causa2, u"A") && g.FechaConstitucion == 0; }, 811, 449,
     u"mskFechaConst", false},
    {4, [](const G& g) { return !vacio(g.DNI) && !vacio(g.Causa2) && k(g) == 4; }, 673, 449, u"",
     false},
    {5, [](const G& g) { return en(g.Causa2, u"A") && en(g.Causa1, u"CM"); }, 448, 449, u"", false},
    {6, [](const G& g) { return en(g.Causa2, u"B") && en(g.Causa1, u"CIP"); }, 450, 449, u"",
     false},
    {7, [](const G& g) { return en(g.Causa2, u"C") && en(g.Causa1, u"MIP"); }, 451, 449, u"",
     false},
    {8, [](const G& g) { return vacio(g.DNI) && en(g.Causa1, u"CM"); }, 452, 158, u"txtDNI", false},
    {9, [](const G& g) { return vacio(g.DNI) && g.MotivoCambio != SinCambios; }, 455, 158,
     u"txtDNI", false},
    {10,
     [](const G& g) {
         return g.MotivoCambio == Transformacion && g.DNI.right(8) != g.DNIAnterior.right(8);
     },
     456, 158, u"txtDNI", false},
    {11,
     [](const G& g) {
         return g.MotivoCambio == Transformacion && g.DNI.left(1) == g.DNIAnterior.left(1);
     },
     457, 158, u"txtDNI", false},
    {12,
     [](const G& g) {
         return g.MotivoCambio == Transformacion && (k(g) == 4 || clase(g.DNIAnterior) == 4);
     },
     458, 158, u"txtDNI", false},
    {13, [](const G& g) { return saleDelGrupo(g, LetrasGrupoGeneral); }, 832, 158, u"txtDNI",
     false},
    {14, [](const G& g) { return saleDelGrupo(g, LetrasGrupoNW); }, 833, 158, u"txtDNI", false},
    {15, [](const G& g) { return saleDelGrupo(g, LetrasGrupoQR); }, 834, 158, u"txtDNI", false},
    {16, [](const G& g) { return g.MotivoCambio == TransformacionSinCif && k(g) == 4; }, 459, 158,
     u"txtDNI", false},
    {17,
     [](const G& g) {
         return Marcado(g.AnexoI) && !vacio(g.DNI) && k(g) != 2 && k(g) != 3 &&
                !conjunto(g.DNI, LetrasAnexoI);
     },
     460, 461, u"chkApartado8", false},
    {18, [](const G& g) { return vacio(g.Causa1) && vacio(g.Causa2); }, 462, 463,
     u"chkDeclaracionPrevia", false},
    {19, [](const G& g) { return en(g.Causa2, u"E") && k(g) == 1 && g.FechaInscripcion == 0; }, 776,
     465, u"mskFechaInscrip", false},
    {20, [](const G& g) { return en(g.Causa1, u"M") && g.FechaModificacion() == 0; }, 464, 465,
     u"mskFechaModificacion", false},
    {21, [](const G& g) { return !en(g.Causa1, u"M") && g.FechaModificacion() != 0; }, 466, 465,
     u"mskFechaModificacion", false},
    {22,
     [](const G& g) {
         return en(g.Causa1, u"C") && g.MotivoCambio != SinCambios &&
                g.MotivoCambio != ErroresAnteriores;
     },
     467, 468, u"", false},
    {23,
     [](const G& g) {
         return g.MotivoCambio == SinCambios && (!vacio(g.DNIAnterior) || !vacio(g.NombreAnterior));
     },
     469, 125, u"", Pestana},
    {24,
     [](const G& g) {
         return g.MotivoCambio == ErroresAnteriores && vacio(g.DNIAnterior) &&
                vacio(g.NombreAnterior);
     },
     470, 125, u"txtDNIAnterior", Pestana},
    {25,
     [](const G& g) {
         return g.MotivoCambio == ErroresAnteriores && !vacio(g.DNIAnterior) &&
                g.DNIAnterior == g.DNI;
     },
     471, 125, u"", Pestana},
    {26, [](const G& g) { return g.MotivoCambio == ErroresAnteriores && nombreIgual(g); }, 472, 125,
     u"", Pestana},
    {27, [](const G& g) { return g.MotivoCambio == CambioNombre && noEsSoloNombre(g); }, 473, 125,
     u"", Pestana},
    {28, [](const G& g) { return g.MotivoCambio == Transformacion && nombreIgual(g); }, 476, 125,
     u"", Pestana},
    {29, [](const G& g) { return g.MotivoCambio == TransformacionSinCif && noEsSoloNombre(g); },
     478, 125, u"txtDNIAnterior", Pestana},
    {30,
     [](const G& g) {
         return vacio(g.ElMismo) && (vacio(g.DNIRepresentante) || vacio(g.NombreRepresentante) ||
                                     vacio(g.FirmaEnCalidadDe));
     },
     479, 480, u"txtDNIRepresentante", false},
    {31,
     [](const G& g) {
         return Marcado(g.ElMismo) &&
                (!vacio(g.DNIRepresentante) || !vacio(g.NombreRepresentante) ||
                 g.FirmaEnCalidadDe != FirmaElMismo);
     },
     481, 480, u"txtDNIRepresentante", false},
}};

}  // namespace

std::span<const ReglaGeneral> ReglasCausas() { return Reglas; }

const ReglaGeneral* PrimeraCausaRota(const cDatosGenerales& general) {
    for (const auto& regla : Reglas)
        if (regla.rota(general)) return &regla;
    return nullptr;
}

std::optional<NifRechazado> PrimerNifRechazado(const cDatosGenerales& general,
                                               const std::function<bool(const QString&)>& valida) {
    const auto malo = [&](const QString& nif) { return !vacio(nif) && !valida(nif.trimmed()); };
    if (malo(general.DNIAnterior)) return NifRechazado{u"txtDNIAnterior", true};
    if (malo(general.DNIRepresentante)) return NifRechazado{u"txtDNIRepresentante", false};
    if (!en(general.Causa2, u"A") && malo(general.DNI)) return NifRechazado{u"txtDNI", false};
    return std::nullopt;
}

}  // namespace padral
