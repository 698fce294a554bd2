// Printing through a real queue of the system, and the printed page read back.

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QTemporaryDir>
#include <QTimer>

#include "core/shared_state.h"
#include "cups_server.h"
#include "pdf_reader.h"
#include "platform/failure.h"
#include "printing/job.h"
#include "printing/primitives.h"
#include "printing/ui/printer_factory.h"
#include "support/printed_records.h"
#include "support/recorders.h"

namespace padral::test {
namespace {

class Cups : public testing::Test, public pruebas::RegistrosDeImpresion {
protected:
    ServidorCups servidor;
    pruebas::GrabadorAvisos avisos;
    pruebas::RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    FabricaQt fabrica{reloj};

    void SetUp() override {
        if (!HayLectorPdf()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
        if (!servidor.Listo()) GTEST_SKIP() << servidor.Motivo().toStdString();
        datos.DNI = QStringLiteral("12345678Z");
        datos.NOMBRE = QStringLiteral("ETXEBERRIA, MIREN");
    }
    void Imprime(const QString& copia) {
        Imprimir(estado, registros, fabrica).ImprimirDeclaracion(copia);
    }
};

TEST_F(Cups, LaImpresoraPorOmisionImprimeCadaCopiaComoUnDocumento) {
    Imprime(QStringLiteral("AD"));
    Imprime(QStringLiteral("IT"));
    const QStringList ficheros = servidor.EsperarFicheros(2);
    ASSERT_EQ(ficheros.size(), 2);
    for (const auto& fichero : ficheros) {
        EXPECT_EQ(PaginasPdf(fichero), 1);
        const QString texto = TextoPdf(fichero);
        for (const auto* parte : {u"12345678Z", u"ETXEBERRIA, MIREN", u"417", u"PADRAL AITORPENA",
                                  u"APARTADO 1: CAUSA DE LA PRESENTACIÓN"})
            EXPECT_TRUE(texto.contains(QString::fromUtf16(parte))) << texto.toStdString();
        // The origin lies within 5 mm of the corner; the value stands 2.1 mm right of it.
        const QRectF lugar = LugarPalabra(fichero, datos.DNI);
        EXPECT_GE(lugar.left(), 1.9);
        EXPECT_LE(lugar.left(), 7.3);
    }
    // What went to a printer is no file to tell the user about.
    EXPECT_TRUE(fabrica.TomarFicheros().isEmpty());
}

TEST_F(Cups, UnaColaQueYaNoEstaLoDice) {
    fabrica.UsarCola(QStringLiteral("cola-quitada"));
    try {
        Imprime(QStringLiteral("AD"));
        FAIL() << "the failure got lost";
    } catch (const Fallo& fallo) {
        EXPECT_EQ(fallo.Castellano(), u"La impresora \"cola-quitada\" no está disponible.");
    }
}

TEST_F(Cups, UnServidorQueDesapareceLoDice) {
    const auto papel = fabrica.Abrir(QStringLiteral("417"));
    EscribirTexto(*papel, 10, 10, QStringLiteral("texto"));
    papel->FinPagina();
    servidor.Parar();
    EXPECT_THROW(papel->Cerrar(), Fallo);
}

TEST_F(Cups, UnaColaQueNoAceptaTrabajosLoDice) {
    servidor.RechazarTrabajos();
    EXPECT_THROW(Imprime(QStringLiteral("AD")), Fallo);
}

/// Does that in the printer dialog as soon as it shows.
void EnElDialogo(const std::function<void(QPrintDialog*)>& hacer) {
    QTimer::singleShot(0, qApp, [hacer] {
        auto* dialogo = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialogo, nullptr);
        hacer(dialogo);
    });
}

TEST_F(Cups, LaColaElegidaSirveParaVariosDocumentos) {
    EnElDialogo([](QPrintDialog* dialogo) { dialogo->accept(); });
    fabrica.Elegir(nullptr);
    Imprime(QStringLiteral("AD"));
    Imprime(QStringLiteral("IT"));
    EXPECT_EQ(servidor.EsperarFicheros(2).size(), 2);
}

TEST_F(Cups, ElImpresoSaleDerechoDejeLoQueDejeElDialogo) {
    EnElDialogo([](QPrintDialog* dialogo) {
        dialogo->accept();
        dialogo->printer()->setPageSize(QPageSize(QPageSize::A3));
        dialogo->printer()->setPageOrientation(QPageLayout::Landscape);
    });
    fabrica.Elegir(nullptr);
    Imprime(QStringLiteral("AD"));
    const QStringList ficheros = servidor.EsperarFicheros(1);
    ASSERT_EQ(ficheros.size(), 1);
    EXPECT_NEAR(HojaPdf(ficheros[0]).width(), 210, 0.5);
    EXPECT_NEAR(HojaPdf(ficheros[0]).height(), 297, 0.5);
    const QRectF lugar = LugarPalabra(ficheros[0], datos.DNI);
    EXPECT_LE(lugar.left(), 7.3);
    EXPECT_GT(lugar.width(), lugar.height());
}

TEST_F(Cups, CancelarTrasMirarElPdfDejaLaCola) {
    EnElDialogo([](QPrintDialog* dialogo) { dialogo->accept(); });
    fabrica.Elegir(nullptr);
    EnElDialogo([](QPrintDialog* dialogo) {
        auto* colas = dialogo->findChild<QComboBox*>(QStringLiteral("printers"));
        ASSERT_NE(colas, nullptr);
        colas->setCurrentIndex(colas->count() - 1);
        dialogo->reject();
    });
    fabrica.Elegir(nullptr);
    Imprime(QStringLiteral("AD"));
    EXPECT_TRUE(fabrica.TomarFicheros().isEmpty());
    EXPECT_EQ(servidor.EsperarFicheros(1).size(), 1);
}

TEST_F(Cups, DeLaColaSePasaAUnFicheroConNombre) {
    QTemporaryDir carpeta;
    const QString nombre = carpeta.filePath(QStringLiteral("ibaialde.pdf"));
    EnElDialogo([nombre](QPrintDialog* dialogo) {
        auto* colas = dialogo->findChild<QComboBox*>(QStringLiteral("printers"));
        ASSERT_NE(colas, nullptr);
        colas->setCurrentIndex(colas->count() - 1);
        dialogo->findChild<QLineEdit*>(QStringLiteral("filename"))->setText(nombre);
        dialogo->accept();
    });
    fabrica.Elegir(nullptr);
    Imprime(QStringLiteral("AD"));
    EXPECT_EQ(fabrica.TomarFicheros(),
              QStringList(carpeta.filePath(QStringLiteral("ibaialde-AD.pdf"))));
}

}  // namespace
}  // namespace padral::test
