#include "ui/qt_language.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTranslator>
#include <QXmlStreamReader>
#include <memory>

using padral::InstalarTraduccionQt;

namespace {

struct Texto {
    const char* contexto;
    const char* ingles;
    const char* castellano;
    const char* euskera;
};

void PrintTo(const Texto& t, std::ostream* salida) { *salida << t.contexto << ' ' << t.ingles; }

constexpr Texto Textos[] = {
    {"QPlatformTheme", "OK", "Aceptar", "Ados"},
    {"QPlatformTheme", "Cancel", "Cancelar", "Utzi"},
    {"QPlatformTheme", "&Yes", "&Sí", "&Bai"},
    {"QPlatformTheme", "&No", "&No", "&Ez"},
    {"QPlatformTheme", "Close", "Cerrar", "Itxi"},
    {"QPlatformTheme", "Save", "Guardar", "Gorde"},
    {"QPlatformTheme", "Open", "Abrir", "Ireki"},
    {"QWidgetTextControl", "&Undo", "&Deshacer", "&Desegin"},
    {"QWidgetTextControl", "Select All", "Seleccionar todo", "Hautatu dena"},
    {"QFileDialog", "Look in:", "Ver en:", "Begiratu hemen:"},
    {"QFileDialog", "Go to the parent directory", "Ir al directorio superior",
     "Joan goragoko karpetara"},
    {"QPrintDialog", "&Print", "Im&primir", "&Inprimatu"},
    {"QPrintWidget", "P&roperties", "P&ropiedades", "&Propietateak"},
    {"QPrintSettingsOutput", "Copies:", "Copias:", "Kopiak:"},
    {"QPrintSettingsOutput", "Off", "No", "Ez"},
    {"QPageSetupWidget", "Orientation", "Orientación", "Orientazioa"},
    {"QPageSize", "Envelope C5", "Sobre C5", "C5 gutun-azala"},
    {"QCupsJobWidget", "Job priority:", "Prioridad del trabajo:", "Lanaren lehentasuna:"},
};

QString traducido(const Texto& t) { return QCoreApplication::translate(t.contexto, t.ingles); }

class TextosDeQt : public ::testing::TestWithParam<Texto> {};

TEST_P(TextosDeQt, SiguenElIdioma) {
    InstalarTraduccionQt(QStringLiteral("E"));
    EXPECT_EQ(traducido(GetParam()), QString::fromUtf8(GetParam().euskera));
    InstalarTraduccionQt(QStringLiteral("C"));
    EXPECT_EQ(traducido(GetParam()), QString::fromUtf8(GetParam().castellano));
    InstalarTraduccionQt(QStringLiteral("E"));
    EXPECT_EQ(traducido(GetParam()), QString::fromUtf8(GetParam().euskera));
}

INSTANTIATE_TEST_SUITE_P(Cajas, TextosDeQt, ::testing::ValuesIn(Textos));

TEST(IdiomaDeQt, OtraLetraEsCastellano) {
    InstalarTraduccionQt(QStringLiteral("?"));
    EXPECT_EQ(traducido(Textos[0]), QStringLiteral("Aceptar"));
}

TEST(IdiomaDeQt, NoDejaTraductoresViejos) {
    InstalarTraduccionQt(QStringLiteral("E"));
    const auto antes = qApp->findChildren<QTranslator*>().size();
    InstalarTraduccionQt(QStringLiteral("C"));
    InstalarTraduccionQt(QStringLiteral("E"));
    EXPECT_EQ(qApp->findChildren<QTranslator*>().size(), antes);
}

TEST(IdiomaDeQt, LosBotonesYElMenuDeUnCampoHablanEuskera) {
    InstalarTraduccionQt(QStringLiteral("E"));
    QDialogButtonBox botones(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    EXPECT_EQ(botones.button(QDialogButtonBox::Ok)->text().remove(u'&'), QStringLiteral("Ados"));
    EXPECT_EQ(botones.button(QDialogButtonBox::Cancel)->text().remove(u'&'),
              QStringLiteral("Utzi"));

    QLineEdit campo;
    const std::unique_ptr<QMenu> menu(campo.createStandardContextMenu());
    QStringList textos;
    for (const QAction* orden : menu->actions())
        if (!orden->isSeparator()) textos << orden->text().section(u'\t', 0, 0).remove(u'&');
    EXPECT_EQ(textos, QStringList({QStringLiteral("Desegin"), QStringLiteral("Berregin"),
                                   QStringLiteral("Ebaki"), QStringLiteral("Kopiatu"),
                                   QStringLiteral("Itsatsi"), QStringLiteral("Ezabatu"),
                                   QStringLiteral("Hautatu dena")}));
}

/// Every text of a file: its arguments and its access key survive the translation.
void comprobarFichero(const QString& nombre, int almenos) {
    QFile fichero(QStringLiteral(PADRAL_SOURCE_DIR "/data/qt/") + nombre);
    ASSERT_TRUE(fichero.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&fichero);
    QString origen;
    int cuenta = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == u"source") origen = xml.readElementText();
        if (xml.name() != u"translation") continue;
        const QString destino = xml.readElementText();
        ++cuenta;
        EXPECT_FALSE(destino.isEmpty()) << origen.toStdString();
        EXPECT_EQ(destino.count(u'&'), origen.count(u'&')) << origen.toStdString();
        for (const QString& marca : {QStringLiteral("%1"), QStringLiteral("%2")})
            EXPECT_EQ(destino.count(marca), origen.count(marca)) << origen.toStdString();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_GE(cuenta, almenos);
}

TEST(TextosPropiosDeQt, EstanEnterosEnEuskera) {
    comprobarFichero(QStringLiteral("qtbase_eu.ts"), 480);
}

TEST(TextosPropiosDeQt, EstanEnterosEnCastellano) {
    comprobarFichero(QStringLiteral("qtbase_es_more.ts"), 38);
}

}  // namespace
