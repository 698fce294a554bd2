// Documents without a printer on the system: PDF files.

#include "printing/ui/printer_factory.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QTemporaryDir>
#include <QTimer>

#include "core/shared_state.h"
#include "declaration/general_data.h"
#include "pdf_reader.h"
#include "platform/failure.h"
#include "printing/job.h"
#include "support/recorders.h"

namespace padral::test {
namespace {

class SinImpresora : public testing::Test {
protected:
    QTemporaryDir casa;
    pruebas::GrabadorAvisos avisos;
    pruebas::RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    EstadoDeclaracion declaracion;
    cDatosGenerales datos{declaracion};
    FabricaQt fabrica{reloj};

    void SetUp() override {
        // No print server, and a home of its own.
        qputenv("CUPS_SERVER", QFile::encodeName(casa.filePath(QStringLiteral("no.sock"))));
        qputenv("HOME", QFile::encodeName(casa.path()));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(casa.path()));
        reloj.Hora = {{2026, 1, 31}, {10, 15, 0}};
        datos.DNI = QStringLiteral("12345678Z");
        datos.NOMBRE = QStringLiteral("MUÑOZ ETXEBERRIA, MIREN");
    }
    void Imprime(const QString& copia) {
        Imprimir(estado, {datos}, fabrica).ImprimirDeclaracion(copia);
    }
    QString EnDocumentos(const QString& nombre) const {
        return casa.filePath(QStringLiteral("Documents/") + nombre);
    }
};

TEST_F(SinImpresora, ElFicheroLlevaImpresoIdentificadorCopiaYHora) {
    Imprime(QStringLiteral("AD"));
    Imprime(QStringLiteral("IT"));
    const QStringList esperados = {
        EnDocumentos(QStringLiteral("417-12345678Z-AD-20260131-101500.pdf")),
        EnDocumentos(QStringLiteral("417-12345678Z-IT-20260131-101500.pdf"))};
    EXPECT_EQ(fabrica.TomarFicheros(), esperados);
    EXPECT_TRUE(fabrica.TomarFicheros().isEmpty());
    for (const auto& fichero : esperados) EXPECT_TRUE(QFile::exists(fichero));
}

TEST_F(SinImpresora, NoEscribeSobreUnFicheroQueEsta) {
    Imprime(QStringLiteral("BO"));
    Imprime(QStringLiteral("BO"));
    EXPECT_EQ(fabrica.TomarFicheros().last(),
              EnDocumentos(QStringLiteral("417-12345678Z-BO-20260131-101500-2.pdf")));
    EXPECT_EQ(QDir(casa.filePath(QStringLiteral("Documents"))).count(), 4U);  // with . and ..
}

TEST_F(SinImpresora, UnIdentificadorRaroDaUnNombreDeFichero) {
    datos.DNI = QStringLiteral("../A/1 \u00d1");
    Imprime(QStringLiteral("AD"));
    EXPECT_EQ(fabrica.TomarFicheros().first(),
              EnDocumentos(QStringLiteral("417-___A_1_\u00d1-AD-20260131-101500.pdf")));
}

TEST_F(SinImpresora, LaPaginaSeLee) {
    if (!HayLectorPdf()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    fabrica.UsarPdf(casa.filePath(QStringLiteral("otra")));
    Imprime(QStringLiteral("AD"));
    const QString fichero = fabrica.TomarFicheros().first();
    EXPECT_TRUE(fichero.startsWith(casa.filePath(QStringLiteral("otra/417-"))));
    EXPECT_EQ(PaginasPdf(fichero), 1);
    const QString texto = TextoPdf(fichero);
    for (const auto* parte : {u"12345678Z", u"MUÑOZ ETXEBERRIA, MIREN", u"417", u"PADRAL AITORPENA",
                              u"APARTADO 1: CAUSA DE LA PRESENTACIÓN"})
        EXPECT_TRUE(texto.contains(QString::fromUtf16(parte)))
            << QString::fromUtf16(parte).toStdString();
    // Margin of 5 mm and 0.1 + 2 mm on the form.
    EXPECT_NEAR(LugarPalabra(fichero, datos.DNI).left(), 7.1, 0.2);
}

TEST_F(SinImpresora, UnaCarpetaQueNoSePuedeCrearLoDice) {
    QFile estorbo(casa.filePath(QStringLiteral("estorbo")));
    ASSERT_TRUE(estorbo.open(QIODevice::WriteOnly));
    estorbo.close();
    fabrica.UsarPdf(estorbo.fileName() + QStringLiteral("/dentro"));
    try {
        Imprime(QStringLiteral("AD"));
        FAIL() << "the failure got lost";
    } catch (const Fallo& fallo) {
        EXPECT_TRUE(fallo.Castellano().contains(estorbo.fileName()));
        EXPECT_TRUE(fallo.Euskera().contains(estorbo.fileName()));
    }
}

TEST_F(SinImpresora, UnaColaQueNoExisteLoDice) {
    fabrica.UsarCola(QStringLiteral("no-hay-tal"));
    EXPECT_THROW(Imprime(QStringLiteral("AD")), Fallo);
}

/// Presses that button of the printer dialog as soon as it shows.
void EnElDialogo(QDialog::DialogCode codigo) {
    QTimer::singleShot(0, qApp, [codigo] {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialogo, nullptr);
        codigo == QDialog::Accepted ? dialogo->accept() : dialogo->reject();
    });
}

TEST_F(SinImpresora, ElDialogoOfreceElPdf) {
    for (const auto codigo : {QDialog::Rejected, QDialog::Accepted}) {
        EnElDialogo(codigo);
        fabrica.Elegir(nullptr);
        Imprime(QStringLiteral("AD"));
    }
    EXPECT_EQ(fabrica.TomarFicheros().size(), 2);
}

}  // namespace
}  // namespace padral::test
