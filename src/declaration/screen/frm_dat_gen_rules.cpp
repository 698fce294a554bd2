// The rules of the declaration on the general data screen: what is broken is told, and the focus
// goes where it is put right.

#include "declaration/cross_rules.h"
#include "declaration/general_rules.h"
#include "declaration/screen/frm_dat_gen.h"
#include "ui/review_messages.h"

namespace padral {

bool FrmDatGen::NombreVacio() const { return general_.NOMBRE.trimmed().isEmpty(); }

bool FrmDatGen::ValidacionIntroduccionDatos(bool validarNombre) {
    if (validarNombre && NombreVacio()) {
        estado_.Avisar(515, 125);
        enfocar(QStringLiteral("txtNombre"));
        return false;
    }
    if (general_.FECHADECLARACION == 0) {
        estado_.Avisar(516, 517);
        enfocar(QStringLiteral("mskFechaDeclaracion"));
        return false;
    }
    return !estado_.ModificacionesPendientes || ValidarNifsPantalla();
}

bool FrmDatGen::ValidarCausas() {
    const auto* regla = PrimeraCausaRota(general_);
    if (!regla) return true;
    estado_.Avisar(regla->texto, regla->titulo);
    if (regla->pestanaModif) presentarPestana(1);
    enfocar(QString::fromUtf16(regla->foco));
    return false;
}

bool FrmDatGen::ValidarNifsPantalla() {
    const auto valida = [this](const QString& nif) { return estado_.ValidaNifCif(nif); };
    const auto rechazado = PrimerNifRechazado(general_, valida);
    if (!rechazado) return true;
    estado_.AvisarNifNoValido();
    if (rechazado->pestanaModif) presentarPestana(1);
    enfocar(QString::fromUtf16(rechazado->foco));
    return false;
}

bool FrmDatGen::ValidarApartados() {
    const auto valida = [this](const QString& nif) { return estado_.ValidaNifCif(nif); };
    const ResultadoCruce resultado = padral::ValidarApartados(declaracion_, valida);
    if (resultado.fechaVigor) estado_.FechaVigor = *resultado.fechaVigor;
    Avisar(estado_, *this, resultado.revision);
    // What is told of a declaration that passes only informs.
    return resultado.pasa;
}

bool FrmDatGen::ValidarPorcentajes() {
    const Participantes& participantes = declaracion_.participantes;
    declaracion_.SumaPorcen = SumaDePorcentajes(participantes);
    return Avisar(estado_, *this, padral::ValidarPorcentajes(participantes));
}

}  // namespace padral
