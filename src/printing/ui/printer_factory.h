#pragma once
// The printer of the moment: the system's default one, one that the user chose, or a PDF file.

#include <QPrinter>

#include "platform/clock.h"
#include "printing/ui/print_target.h"

namespace padral {

/// Asks the system for its printers only when something is printed or the user chooses. Without
/// a default printer on the system documents become PDF files in the user's documents folder,
/// named by form, identifier, copy and time; also when printers are installed but none of them is
/// the default one: the program does not pick one for the user, who finds them in the dialog.
/// A file name that the user types there gets the code of the copy ("ibaialde-AD.pdf"). No file
/// is ever written over.
class FabricaQt : public DestinoImpresion {
public:
    explicit FabricaQt(const Reloj& reloj) : reloj_(reloj) {}

    /// Throws Fallo when the queue does not exist or the folder cannot be made.
    std::unique_ptr<Impresora> Abrir(const QString& titulo) override;
    void Elegir(QWidget* padre) override;
    QStringList TomarFicheros() override;
    void OlvidarNombre() override;

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
    QString raizFichero(const QString& titulo) const;
    QString ficheroNuevo(const QString& titulo) const;
    std::shared_ptr<QPrinter> impresoraDelDialogo(const QString& cola) const;
    void tomarEleccion(const std::shared_ptr<QPrinter>& impresora);

    const Reloj& reloj_;
    std::shared_ptr<QPrinter> elegida_;  ///< with the settings of the printer dialog
    QString cola_;                       ///< empty: the system's default printer
    bool pdf_ = false;
    QString carpeta_;
    QString nombre_;  ///< of the files, as typed by the user; empty: the program's own
    QStringList ficheros_;
};

}  // namespace padral
