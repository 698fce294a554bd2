#pragma once
// The program in this process with a data folder of its own and a printer that writes down.

#include <QTemporaryDir>

#include "player.h"
#include "stored_rows.h"
#include "support/recording_printer.h"

namespace padral::pruebas {

/// Keeps what is printed; nothing becomes a file.
class DestinoRegistro : public DestinoImpresion {
public:
    std::unique_ptr<Impresora> Abrir(const QString& titulo) override {
        return fabrica_.Abrir(titulo);
    }
    void Elegir(QWidget* /*padre*/) override { ADD_FAILURE() << "a printer is chosen"; }
    QStringList TomarFicheros() override { return {}; }
    /// The documents since the last time they were taken.
    std::vector<std::shared_ptr<test::Documento>> Tomar() {
        return std::exchange(fabrica_.documentos, {});
    }

private:
    test::FabricaRegistro fabrica_;
};

class ProgramaEntero {
public:
    /// Starts a program that has been started before, in that language.
    explicit ProgramaEntero(const QString& idioma);

    Programa& programa() { return *programa_; }
    Guia& guia() { return *guia_; }
    Interprete& interprete() { return *interprete_; }
    /// Commands of the main window and of the list; false: the test has failed.
    bool Nueva() { return ordenar(QStringLiteral("Nueva"), 0, {}); }
    bool Abrir(qint64 clave) {
        return ordenar(QStringLiteral("Abrir"), clave, QStringLiteral("cmdVerDeclaracion"));
    }
    bool Copiar(qint64 clave) {
        return ordenar(QStringLiteral("Abrir"), clave, QStringLiteral("CmdCopiarDeclaracion"));
    }
    /// Deletes it, answers yes, and leaves the list.
    bool Borrar(qint64 clave);
    /// Prints the open declaration: both official copies, then a draft; or the draft alone.
    std::vector<std::shared_ptr<test::Documento>> Imprimir();
    std::vector<std::shared_ptr<test::Documento>> ImprimirBorrador();
    bool Pulsar(std::initializer_list<const char16_t*> controles);

    std::vector<FilaGuardada> Filas() const;
    /// Whether the general data, the list or a section is open.
    bool HayPantalla();

    GrabadorAvisos avisos;

private:
    bool ordenar(const QString& orden, qint64 clave, const QString& boton);
    void elegirFila(qint64 clave);

    QTemporaryDir carpeta_;
    RelojFijo reloj_;
    DestinoRegistro impresora_;
    std::unique_ptr<Programa> programa_;
    std::unique_ptr<Guia> guia_;
    std::unique_ptr<Interprete> interprete_;
};

}  // namespace padral::pruebas
