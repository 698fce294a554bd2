#pragma once
// The printer of the moment: the system's default one, one that the user chose, or a PDF file.

#include <QPrinter>

#include "platform/clock.h"
#include "printing/ui/print_target.h"

namespace padral {

/// Asks the system for its printers only when something is printed or the user chooses. Without
/// a default printer on the system documents become PDF files in the user's documents folder,
/// named by form, identifier, copy and time.
class FabricaQt : public DestinoImpresion {
public:
    explicit FabricaQt(const Reloj& reloj) : reloj_(reloj) {}

    /// Throws Fallo when the queue does not exist or the folder cannot be made.
    std::unique_ptr<Impresora> Abrir(const QString& titulo) override;
    void Elegir(QWidget* padre) override;
    QStringList TomarFicheros() override;

    /// Documents go to that queue of the system.
    void UsarCola(const QString& nombre);
    /// Documents become files in that folder; empty: the user's documents folder.
    void UsarPdf(const QString& carpeta = {});

private:
    /// The queue of the moment; empty: a PDF file.
    QString cola() const;
    std::shared_ptr<QPrinter> impresoraDeCola(const QString& nombre) const;
    std::shared_ptr<QPrinter> impresoraPdf(const QString& titulo);
    QString carpetaPdf() const;
    QString ficheroNuevo(const QString& titulo) const;

    const Reloj& reloj_;
    std::shared_ptr<QPrinter> elegida_;  ///< with the settings of the printer dialog
    QString cola_;                       ///< empty: the system's default printer
    bool pdf_ = false;
    QString carpeta_;
    QStringList ficheros_;
};

}  // namespace padral
