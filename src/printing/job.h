#pragma once
// The print job: which copies, and the pages of one copy in their order.

#include <QString>
#include <QStringList>

#include "printing/layout.h"

namespace padral {

/// What the user asks for.
struct OpcionesImpresion {
    bool borrador = false;  ///< one draft; the two copies do not count then
    bool copiaAdministracion = true;
    bool copiaInteresado = true;
};

/// False when the official print is selected and neither copy is.
bool ValidarCopias(const OpcionesImpresion& opciones);
/// Codes `TipoCopia` of the copies to print, in their order.
QStringList CopiasPedidas(const OpcionesImpresion& opciones);

/// Name of the picture with the title of a copy: "AD" administration, "IT" declarant, "BO" draft,
/// "BA" bank, "IF" computing department. Empty for any other code; its first stamp then fails.
QString ImagenDeCopia(const QString& TipoCopia);

/// The module that prints the form. Failures are thrown as Fallo.
class Imprimir {
public:
    Imprimir(EstadoCompartido& estado, const RegistrosImpresos& registros,
             FabricaImpresora& fabrica)
        : estado_(estado), registros_(registros), fabrica_(fabrica) {}

    /// Prints one copy as one document.
    void ImprimirDeclaracion(const QString& TipoCopia);

private:
    EstadoCompartido& estado_;
    RegistrosImpresos registros_;
    FabricaImpresora& fabrica_;
};

}  // namespace padral
