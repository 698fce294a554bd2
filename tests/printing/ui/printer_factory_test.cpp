// Documents without a printer on the system: PDF files.

#include "printing/ui/printer_factory.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

#include "core/shared_state.h"
#include "pdf_reader.h"
#include "platform/failure.h"
#include "printing/job.h"
#include "support/printed_records.h"
#include "support/recorders.h"

namespace padral::test {
namespace {

class SinImpresora : public testing::Test, public pruebas::RegistrosDeImpresion {
protected:
    QTemporaryDir casa;
    pruebas::GrabadorAvisos avisos;
    pruebas::RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
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
        Imprimir(estado, registros, fabrica).ImprimirDeclaracion(copia);
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

/// Types that name in the printer dialog, unless it is empty, and presses that button.
void EnElDialogo(QDialog::DialogCode codigo, const QString& nombre = {}) {
    QTimer::singleShot(0, qApp, [codigo, nombre] {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialogo, nullptr);
        if (!nombre.isEmpty()) {
            auto* campo = dialogo->findChild<QLineEdit*>(QStringLiteral("filename"));
            ASSERT_NE(campo, nullptr);
            campo->setText(nombre);
        }
        codigo == QDialog::Accepted ? dialogo->accept() : dialogo->reject();
    });
}

TEST_F(SinImpresora, ElDialogoOfreceElPdf) {
    for (const auto codigo : {QDialog::Rejected, QDialog::Accepted}) {
        EnElDialogo(codigo);
        fabrica.Elegir(nullptr);
        Imprime(QStringLiteral("AD"));
    }
    EXPECT_EQ(
        fabrica.TomarFicheros(),
        (QStringList{EnDocumentos(QStringLiteral("417-12345678Z-AD-20260131-101500.pdf")),
                     EnDocumentos(QStringLiteral("417-12345678Z-AD-20260131-101500-2.pdf"))}));
}

class NombreEscrito : public SinImpresora {
protected:
    /// Names of the files that were made, without their folder, which must be `carpeta`.
    QStringList Nombres(const QString& carpeta) {
        QStringList nombres;
        for (const QString& fichero : fabrica.TomarFicheros()) {
            EXPECT_TRUE(QFile::exists(fichero));
            EXPECT_EQ(QFileInfo(fichero).path(), carpeta);
            nombres << QFileInfo(fichero).fileName();
        }
        return nombres;
    }
    void Elige(const QString& nombre, QDialog::DialogCode codigo = QDialog::Accepted) {
        EnElDialogo(codigo, nombre);
        fabrica.Elegir(nullptr);
    }
};

struct FilaNombre {
    const char16_t *escrito, *raiz;
};
const FilaNombre nombresEscritos[] = {
    {u"ibaialde.pdf", u"ibaialde"}, {u"ibaialde.PDF", u"ibaialde"},     {u"ibaialde", u"ibaialde"},
    {u"v1.2.pdf", u"v1.2"},         {u"Ñandú 2026.pdf", u"Ñandú 2026"}, {u"417-1.pdf", u"417-1"},
};

TEST_F(NombreEscrito, LlevaElCodigoDeLaCopia) {
    for (const auto& fila : nombresEscritos) {
        QTemporaryDir otra;
        Elige(otra.filePath(QString::fromUtf16(fila.escrito)));
        for (const auto* copia : {u"AD", u"IT", u"BO"}) Imprime(QString::fromUtf16(copia));
        const QString raiz = QString::fromUtf16(fila.raiz);
        EXPECT_EQ(Nombres(otra.path()),
                  (QStringList{raiz + QStringLiteral("-AD.pdf"), raiz + QStringLiteral("-IT.pdf"),
                               raiz + QStringLiteral("-BO.pdf")}));
    }
}

TEST_F(NombreEscrito, NoEscribeSobreUnFicheroQueEsta) {
    Elige(casa.filePath(QStringLiteral("ibaialde.pdf")));
    for (int vez = 0; vez < 3; ++vez) Imprime(QStringLiteral("AD"));
    EXPECT_EQ(Nombres(casa.path()),
              (QStringList{QStringLiteral("ibaialde-AD.pdf"), QStringLiteral("ibaialde-AD-2.pdf"),
                           QStringLiteral("ibaialde-AD-3.pdf")}));
}

TEST_F(NombreEscrito, ElPropuestoNoCuenta) {
    Elige(casa.filePath(QStringLiteral("417.pdf")));
    Imprime(QStringLiteral("AD"));
    EXPECT_EQ(Nombres(casa.path()),
              QStringList(QStringLiteral("417-12345678Z-AD-20260131-101500.pdf")));
}

TEST_F(NombreEscrito, CancelarNoLoCambia) {
    Elige(casa.filePath(QStringLiteral("uno.pdf")));
    Elige(casa.filePath(QStringLiteral("dos.pdf")), QDialog::Rejected);
    Imprime(QStringLiteral("AD"));
    EXPECT_EQ(Nombres(casa.path()), QStringList(QStringLiteral("uno-AD.pdf")));
}

TEST_F(NombreEscrito, ElDialogoProponeElUltimo) {
    Elige(casa.filePath(QStringLiteral("ibaialde.pdf")));
    Elige({});
    Imprime(QStringLiteral("AD"));
    EXPECT_EQ(Nombres(casa.path()), QStringList(QStringLiteral("ibaialde-AD.pdf")));
}

TEST_F(NombreEscrito, SirveParaUnaImpresionYLaCarpetaParaTodas) {
    Elige(casa.filePath(QStringLiteral("ibaialde.pdf")));
    Imprime(QStringLiteral("AD"));
    fabrica.OlvidarNombre();
    Imprime(QStringLiteral("AD"));
    EXPECT_EQ(Nombres(casa.path()),
              (QStringList{QStringLiteral("ibaialde-AD.pdf"),
                           QStringLiteral("417-12345678Z-AD-20260131-101500.pdf")}));
}

}  // namespace
}  // namespace padral::test
