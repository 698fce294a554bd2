// The real program for tests of how it ends: message boxes are written to the standard output and
// answered with their first button. Arguments: program folder, folder of printed files, action.

#include <QApplication>
#include <QTextStream>
#include <QTimer>

#include "app/application.h"
#include "app/program.h"
#include "app/tour/guide.h"
#include "printing/ui/printer_factory.h"

namespace padral {

namespace {

class AvisadorEscrito : public Avisador {
public:
    Respuesta Mostrar(const Mensaje& m) override {
        QTextStream(stdout) << "BOX " << static_cast<int>(m.icono) << " [" << m.titulo << "] "
                            << QString(m.texto).replace(u'\n', u'|') << Qt::endl;
        if (m.botones == Botones::SiNo) return Respuesta::Si;
        return Respuesta::Aceptar;
    }
};

class RelojParado : public Reloj {
public:
    QDateTime Ahora() const override { return QDateTime(QDate(2026, 1, 31), QTime(10, 15)); }
    void Esperar(int) override {}
};

/// A declaration that can be saved: a change of name, which needs no section.
void declarar(Guia& guia) {
    guia.Ordenar(QStringLiteral("Nueva"));
    guia.Escribir(QStringLiteral("txtDNI"), QStringLiteral("12345678Z"));
    guia.Escribir(QStringLiteral("txtNombre"), QStringLiteral("Lasa Etxe, Jon"));
    guia.Escribir(QStringLiteral("mskFechaDeclaracion"), QStringLiteral("31012026"));
    guia.Pulsar(QStringLiteral("chkDeclaracionModificacion"));
    guia.Escribir(QStringLiteral("mskFechaModificacion"), QStringLiteral("15012026"));
    guia.ElegirPestana(QStringLiteral("Pestaña"), 1);
    guia.ElegirEnCombo(QStringLiteral("cmbMotivoCambio"), QStringLiteral("20"));
    guia.Escribir(QStringLiteral("txtNombreAnterior"), QStringLiteral("Lasa Etxe, Ion"));
    guia.Pulsar(QStringLiteral("chkElMismo"));
}

/// What the user does before the program ends.
void actuar(Programa& programa, Guia& guia, const QString& accion) {
    if (accion == QStringLiteral("start") || accion == QStringLiteral("exec")) return;
    declarar(guia);
    if (accion == QStringLiteral("close")) {
        programa.ventana().close();
        return;
    }
    if (accion == QStringLiteral("leave")) {
        guia.Ordenar(QStringLiteral("Salir"));
        return;
    }
    if (accion == QStringLiteral("save")) {
        guia.Pulsar(QStringLiteral("cmdAceptar"));
        return;
    }
    guia.Pulsar(QStringLiteral("cmdImprimir"));
    guia.Pulsar(QStringLiteral("btnAceptar"));
}

int probar(Aplicacion& aplicacion, const QStringList& argumentos) {
    AvisadorEscrito avisador;
    RelojParado reloj;
    FabricaQt impresora(reloj);
    impresora.UsarPdf(argumentos.value(2));
    Programa programa({avisador, reloj, impresora}, QStringLiteral(PADRAL_BINARIES),
                      argumentos.value(1));
    aplicacion.alFallar = [&](const QString& castellano, const QString& euskera) {
        MostrarFallo(programa.estado(), programa.IdiomaConocido(), castellano, euskera);
    };
    if (argumentos.value(3) == QStringLiteral("stop"))
        programa.utilidades().traspasar = [](EstadoCompartido&) { return true; };
    bool seguir = false;
    aplicacion.Proteger([&] { seguir = programa.Iniciar(); });
    if (!seguir) return 0;
    aplicacion.Proteger([&] { programa.MostrarVentana(); });
    Guia guia(&programa.ventana());
    guia.AlDialogo(QStringLiteral("FrmIdioma"), [&](QWidget*) {
        QTextStream(stdout) << "LANGUAGE ASKED" << Qt::endl;
        guia.Pulsar(QStringLiteral("cmdcastellano"));
    });
    guia.TomarVentana();
    aplicacion.Proteger([&] { actuar(programa, guia, argumentos.value(3)); });
    if (argumentos.value(3) == QStringLiteral("exec")) {
        // As a click on the window's own close button while the program waits for the user.
        QTimer::singleShot(0, &programa.ventana(), [&] { programa.ventana().close(); });
        return QApplication::exec();
    }
    QTextStream(stdout) << (programa.ventana().isVisible() ? "WINDOW OPEN" : "WINDOW CLOSED")
                        << Qt::endl;
    return 0;
}

}  // namespace

}  // namespace padral

int main(int argc, char** argv) {
    padral::Aplicacion aplicacion(argc, argv);
    const auto argumentos = QCoreApplication::arguments();
    return padral::probar(aplicacion, argumentos);
}
