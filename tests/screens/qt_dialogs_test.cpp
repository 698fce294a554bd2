// The toolkit's own dialogs and menus, as the program shows them: no English in either language,
// nothing cut off.

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPrintDialog>
#include <QProgressDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>
#include <QXmlStreamReader>
#include <memory>

#include "printing/ui/printer_factory.h"
#include "screens/screen_audit.h"
#include "support/recorders.h"
#include "ui/fields.h"
#include "ui/message_box.h"
#include "ui/qt_language.h"

namespace padral::pruebas {
namespace {

QString sinMarcas(QString texto) {
    return texto.section(u'\t', 0, 0).remove(u'&').remove(u':').simplified();
}

/// English texts of the toolkit whose translation differs from them.
QSet<QString> textosIngleses() {
    QSet<QString> ingleses;
    QFile fichero(QStringLiteral(PADRAL_SOURCE_DIR "/data/qt/qtbase_eu.ts"));
    EXPECT_TRUE(fichero.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&fichero);
    QString origen;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == u"source") origen = sinMarcas(xml.readElementText());
        if (xml.name() == u"translation" && sinMarcas(xml.readElementText()) != origen)
            ingleses.insert(origen);
    }
    EXPECT_GT(ingleses.size(), 300);
    return ingleses;
}

bool esIngles(const QString& texto) {
    static const QSet<QString> ingleses = textosIngleses();
    static const QRegularExpression palabras(
        QStringLiteral("\\b(the|of|and|to|file|files|page|pages|print|printer|from|name|size|type|"
                       "cancel|open|save|parent|directory|folder|copies|margins?|paper|options|"
                       "properties|location|output|view|all|select|undo|redo|copy|paste|clear)\\b"),
        QRegularExpression::CaseInsensitiveOption);
    const QString limpio = sinMarcas(texto);
    return ingleses.contains(limpio) || palabras.match(limpio).hasMatch();
}

QStringList textos(const QWidget& ventana) {
    QStringList lista;
    for (const Rotulo& r : Rotulos(ventana)) lista << r.texto;
    for (const auto* combo : ventana.findChildren<QComboBox*>())
        for (int i = 0; i < combo->count() && combo->isVisibleTo(&ventana); ++i)
            lista << combo->itemText(i);
    return lista;
}

QStringList textos(const QMenu& menu) {
    QStringList lista;
    for (const QAction* orden : menu.actions())
        if (!orden->isSeparator()) lista << orden->text();
    return lista;
}

QStringList ingles(const QStringList& textos, bool euskera) {
    // Spanish has these words too.
    static const QStringList comunes = {QStringLiteral("No"), QStringLiteral("Color")};
    QStringList hallados;
    for (const QString& texto : textos)
        if (esIngles(texto) && (euskera || !comunes.contains(sinMarcas(texto)))) hallados << texto;
    return hallados;
}

class DialogosDeQt : public ::testing::TestWithParam<const char*> {
protected:
    void SetUp() override { InstalarTraduccionQt(QString::fromLatin1(GetParam())); }
    void TearDown() override { InstalarTraduccionQt(QStringLiteral("C")); }

    bool euskera() const { return GetParam()[0] == 'E'; }
    void esperaSinIngles(const QStringList& hay) {
        EXPECT_FALSE(hay.isEmpty());
        EXPECT_EQ(ingles(hay, euskera()).join(u" | ").toStdString(), "");
    }
    void mirar(QWidget& ventana) {
        ventana.show();
        QCoreApplication::processEvents();
        esperaSinIngles(textos(ventana));
        QStringList cortados = RotulosCortados(ventana);
        // The columns of a list of files are the user's to widen.
        cortados.removeIf([](const QString& c) { return c.startsWith(u"QHeaderView"); });
        EXPECT_EQ(cortados.join(u'\n').toStdString(), "");
    }
    /// Looks at the modal dialog that `abrir` brings up, and refuses it.
    template <class Dialogo>
    void mirarModal(const std::function<void()>& abrir, const std::function<void(Dialogo&)>& ver) {
        bool salio = false;
        QTimer::singleShot(0, [&] {
            auto* dialogo = qobject_cast<Dialogo*>(QApplication::activeModalWidget());
            ASSERT_NE(dialogo, nullptr);
            salio = true;
            ver(*dialogo);
            dialogo->reject();
        });
        abrir();
        EXPECT_TRUE(salio);
    }
};

TEST_P(DialogosDeQt, MessageBoxes) {
    AvisadorPantalla avisador;
    avisador.esEuskera = [this] { return euskera(); };
    for (const auto botones : {Botones::Aceptar, Botones::AceptarCancelar, Botones::SiNo}) {
        QTimer::singleShot(0, [&] {
            auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(caja, nullptr);
            mirar(*caja);
            caja->buttons().first()->click();
        });
        avisador.Mostrar(
            {QStringLiteral("417"), QStringLiteral("417"), Icono::Informacion, botones});
    }
}

TEST_P(DialogosDeQt, PrintDialogWithAllItsPanels) {
    RelojFijo reloj;
    QTemporaryDir carpeta;
    FabricaQt fabrica(reloj);
    fabrica.UsarPdf(carpeta.path());
    mirarModal<QPrintDialog>(
        [&] { fabrica.Elegir(nullptr); },
        [this](QPrintDialog& dialogo) {
            mirar(dialogo);
            for (auto* boton : dialogo.findChildren<QPushButton*>())
                if (boton->text().contains(u"<<") || boton->text().contains(u">>")) boton->click();
            for (auto* pestañas : dialogo.findChildren<QTabWidget*>())
                for (int i = 0; i < pestañas->count(); ++i) {
                    pestañas->setCurrentIndex(i);
                    QCoreApplication::processEvents();
                    mirar(dialogo);
                }
        });
}

TEST_P(DialogosDeQt, FileDialogs) {
    QTemporaryDir carpeta;
    for (const auto modo : {QFileDialog::AcceptOpen, QFileDialog::AcceptSave}) {
        QFileDialog dialogo(nullptr, QStringLiteral("417"), carpeta.path());
        dialogo.setOption(QFileDialog::DontUseNativeDialog);
        dialogo.setAcceptMode(modo);
        mirar(dialogo);
        auto* vista = dialogo.findChild<QAbstractItemView*>(QStringLiteral("listView"));
        ASSERT_NE(vista, nullptr);
        QStringList ordenes;
        for (const QAction* orden : dialogo.findChildren<QAction*>()) ordenes << orden->text();
        esperaSinIngles(ordenes);
    }
}

TEST_P(DialogosDeQt, FolderDialog) {
    QTemporaryDir carpeta;
    QFileDialog dialogo(nullptr, QStringLiteral("417"), carpeta.path());
    dialogo.setOption(QFileDialog::DontUseNativeDialog);
    dialogo.setFileMode(QFileDialog::Directory);
    mirar(dialogo);
}

TEST_P(DialogosDeQt, ProgressDialog) {
    QProgressDialog dialogo;
    dialogo.setLabelText(QStringLiteral("417"));
    dialogo.setValue(1);
    mirar(dialogo);
}

TEST_P(DialogosDeQt, ContextMenus) {
    CampoTexto campo(QStringLiteral("txt"), 20);
    QLineEdit linea;
    QTextBrowser paginas;
    paginas.setHtml(QStringLiteral("<p><a href='x.htm'>417</a></p>"));
    for (QMenu* menu : {linea.createStandardContextMenu(), campo.createStandardContextMenu(),
                        paginas.createStandardContextMenu(QPoint(12, 12))}) {
        const std::unique_ptr<QMenu> dueño(menu);
        esperaSinIngles(textos(*menu));
    }
}

TEST_P(DialogosDeQt, EveryStandardButton) {
    QDialogButtonBox caja;
    for (int boton = QDialogButtonBox::FirstButton; boton <= QDialogButtonBox::LastButton;
         boton *= 2)
        caja.addButton(static_cast<QDialogButtonBox::StandardButton>(boton));
    esperaSinIngles(textos(caja));
}

TEST(DialogosDeQtEnIngles, EnglishIsFound) {
    EXPECT_EQ(ingles({QStringLiteral("&Cancel"), QStringLiteral("Utzi"), QStringLiteral("Paste"),
                      QStringLiteral("Select your file"), QStringLiteral("&No")},
                     true)
                  .size(),
              4);
}

INSTANTIATE_TEST_SUITE_P(Idiomas, DialogosDeQt, ::testing::Values("C", "E"));

}  // namespace
}  // namespace padral::pruebas
