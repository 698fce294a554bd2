#pragma once
// Where printed documents go, as the print dialog sees it.

#include <QStringList>

#include "printing/printer_port.h"

class QWidget;

namespace padral {

class DestinoImpresion : public FabricaImpresora {
public:
    /// Lets the user choose the printer for the documents that follow.
    virtual void Elegir(QWidget* padre) = 0;
    /// Full names of the PDF files made since the last call.
    virtual QStringList TomarFicheros() = 0;
    /// The print dialog closes: a file name that the user typed was for this print alone.
    /// A destination that makes no files has nothing to forget.
    virtual void OlvidarNombre() {}
};

}  // namespace padral
