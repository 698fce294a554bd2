#include "whole_program.h"

#include <QDir>
#include <QFile>
#include <QTableView>

namespace padral::pruebas {

namespace {

const QString FicheroDeDatos = QStringLiteral("Tablas/DPadralMod.mdb");
const QString FicheroDeCatalogos = QStringLiteral("Tablas/DPadralLec.mdb");
const QString RejillaDeDeclaraciones = QStringLiteral("flxDeclaraciones");

}  // namespace

ProgramaEntero::ProgramaEntero(const QString& idioma) {
    EXPECT_TRUE(QDir(carpeta_.path()).mkpath(QStringLiteral("Tablas")));
    for (const QString& fichero : {FicheroDeDatos, FicheroDeCatalogos})
        EXPECT_TRUE(
            QFile::copy(QStringLiteral(PADRAL_BINARY_DIR "/data/") + fichero.section(u'/', 1),
                        carpeta_.filePath(fichero)));
    programa_ =
        std::make_unique<Programa>(Puertos{avisos, reloj_, impresora_},
                                   QStringLiteral(PADRAL_BINARY_DIR "/bin"), carpeta_.path());
    EXPECT_TRUE(programa_->Iniciar());
    auto& estado = programa_->estado();
    estado.mdi.IDI(idioma);
    estado.act.ActOnline = 1;
    estado.act.GuardarActOnline(estado.RutaBDModificacion);
    auto& ventana = programa_->ventana();
    ventana.Anadir_captions();
    programa_->MostrarVentana();
    ventana.showNormal();
    ventana.resize(1280, 720);
    guia_ = std::make_unique<Guia>(&ventana);
    guia_->TomarVentana();
    // Nobody looks: painting would take most of the time.
    ventana.setUpdatesEnabled(false);
    interprete_ = std::make_unique<Interprete>(*programa_, *guia_, avisos);
}

std::vector<FilaGuardada> ProgramaEntero::Filas() const {
    return FilasGuardadas(carpeta_.filePath(FicheroDeDatos));
}

bool ProgramaEntero::HayPantalla() {
    for (const QWidget* w : programa_->ventana().findChildren<QWidget*>())
        if (w->objectName().startsWith(QStringLiteral("frm"), Qt::CaseInsensitive) &&
            w->isVisible())
            return true;
    return false;
}

bool ProgramaEntero::ordenar(const QString& orden, qint64 clave, const QString& boton) {
    try {
        guia_->Ordenar(orden);
        if (clave != 0) elegirFila(clave);
        if (!boton.isEmpty()) guia_->Pulsar(boton);
        return true;
    } catch (const GuiaPerdida& e) {
        ADD_FAILURE() << orden.toStdString() << ": " << e.what();
        return false;
    }
}

void ProgramaEntero::elegirFila(qint64 clave) {
    const auto* modelo = guia_->Busca<QTableView>(RejillaDeDeclaraciones)->model();
    for (int fila = 0; fila < modelo->rowCount(); ++fila)
        if (modelo->index(fila, 0).data().toLongLong() == clave)
            return guia_->PulsarCelda(RejillaDeDeclaraciones, fila, 2);
    throw GuiaPerdida("the list has no declaration " + std::to_string(clave));
}

bool ProgramaEntero::Borrar(qint64 clave) {
    const auto& estado = programa_->estado();
    avisos.Espera({estado.Texto(591), estado.Texto(592), Icono::Exclamacion, Botones::SiNo},
                  Respuesta::Si);
    if (!ordenar(QStringLiteral("Borrar"), clave, QStringLiteral("CmdEliminar"))) return false;
    avisos.Verificar();
    // With none left the list closes itself.
    return !programa_->ventana().findChild<QWidget*>(RejillaDeDeclaraciones) ||
           Pulsar({u"cmdAnterior"});
}

bool ProgramaEntero::Pulsar(std::initializer_list<const char16_t*> controles) {
    try {
        for (const auto* control : controles) guia_->Pulsar(QString::fromUtf16(control));
        return true;
    } catch (const GuiaPerdida& e) {
        ADD_FAILURE() << e.what();
        return false;
    }
}

std::vector<std::shared_ptr<test::Documento>> ProgramaEntero::Imprimir() {
    Pulsar({u"cmdImprimir", u"btnAceptar"});
    return ImprimirBorrador();
}

std::vector<std::shared_ptr<test::Documento>> ProgramaEntero::ImprimirBorrador() {
    Pulsar({u"cmdImprimir", u"optTipoImpreso(1)", u"btnAceptar"});
    return impresora_.Tomar();
}

}  // namespace padral::pruebas
