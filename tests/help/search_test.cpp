// The search in the help window.

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>

#include "window_fixture.h"

namespace padral::pruebas {
namespace {

class Buscador : public ConVentana {
protected:
    QLineEdit* campo() const { return hijo<QLineEdit>(u"txtBuscar"); }
    QListWidget* lista() const { return hijo<QListWidget>(u"lstResultado"); }
    QString frase() const { return hijo<QLabel>(u"lblResultado")->text(); }
    QStringList titulos() const {
        QStringList lineas;
        for (int i = 0; i < lista()->count(); ++i)
            lineas << lista()->item(i)->text().section(u'\n', 0, 0);
        return lineas;
    }
    /// Over whatever the field holds.
    void teclear(const QString& pregunta) {
        QTest::keyClick(campo(), Qt::Key_Delete);
        for (const QChar c : pregunta)
            QTest::sendKeyEvent(QTest::Click, campo(), Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
    void buscar(const char16_t* pregunta) {
        tecla(Qt::Key_F, Qt::ControlModifier);
        ASSERT_EQ(QApplication::focusWidget(), campo());
        teclear(QString::fromUtf16(pregunta));
        tecla(Qt::Key_Return);
    }
    QStringList marcas() const {
        QStringList textos;
        for (const auto& marca : navegador()->extraSelections())
            textos << marca.cursor.selectedText();
        return textos;
    }
};

TEST_F(Buscador, FindsThePagesAndSaysHowMany) {
    mostrar(u"indice.htm");
    buscar(u"nif");
    EXPECT_EQ(titulos(), QStringList({QStringLiteral("La lista"), QStringLiteral("El NIF")}));
    EXPECT_EQ(lista()->item(0)->text(), QStringLiteral("La lista\nLa lista Búsqueda por NIF."));
    EXPECT_EQ(frase(), QStringLiteral("2 páginas encontradas."));
    EXPECT_EQ(QApplication::focusWidget(), lista());
    EXPECT_TRUE(ventana()->isVisible());
    buscar(u"letra");
    EXPECT_EQ(titulos(), QStringList{QStringLiteral("El NIF")});
    EXPECT_EQ(frase(), QStringLiteral("Una página encontrada."));
}

TEST_F(Buscador, TheButtonSearchesToo) {
    mostrar(u"indice.htm");
    tecla(Qt::Key_F, Qt::ControlModifier);
    teclear(QStringLiteral("BUSQUEDA"));
    QTest::mouseClick(hijo<QPushButton>(u"cmdBuscar"), Qt::LeftButton);
    EXPECT_EQ(titulos(), QStringList{QStringLiteral("La lista")});
}

TEST_F(Buscador, AChosenPageShowsItsHits) {
    mostrar(u"indice.htm");
    buscar(u"busqueda nif");
    tecla(Qt::Key_Return);
    EXPECT_TRUE(texto().startsWith(QStringLiteral("La lista")));
    EXPECT_EQ(marcas(), QStringList({QStringLiteral("Búsqueda"), QStringLiteral("NIF")}));
    // They go with the page.
    tecla(Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(texto().startsWith(QStringLiteral("Índice")));
    EXPECT_TRUE(marcas().isEmpty());
}

TEST_F(Buscador, AClickChoosesAndThePageInHandIsMarkedToo) {
    mostrar(u"nif.htm");
    buscar(u"nif");
    QTest::mouseClick(lista()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      lista()->visualItemRect(lista()->item(1)).center());
    EXPECT_TRUE(texto().startsWith(QStringLiteral("El NIF")));
    EXPECT_EQ(marcas(), QStringList{QStringLiteral("NIF")});
    mostrar(u"nif.htm");
    EXPECT_TRUE(marcas().isEmpty());
}

TEST_F(Buscador, TheFirstHitOfALongPageComesIntoView) {
    escribir(QStringLiteral("Ayuda/nif.htm"),
             QByteArray("<p>texto</p>").repeated(200) + "<p>aguja</p>");
    mostrar(u"indice.htm");
    buscar(u"aguja");
    tecla(Qt::Key_Return);
    ASSERT_EQ(marcas(), QStringList{QStringLiteral("aguja")});
    const QRect sitio = navegador()->cursorRect(navegador()->extraSelections().front().cursor);
    EXPECT_TRUE(navegador()->viewport()->rect().intersects(sitio));
}

TEST_F(Buscador, NothingFoundIsSaidInWords) {
    mostrar(u"indice.htm");
    for (const char16_t* pregunta : {u"dragón", u"nif dragón", u"", u"¿?"}) {
        buscar(pregunta);
        EXPECT_EQ(frase(), QStringLiteral("Ninguna página contiene esas palabras."));
        EXPECT_EQ(lista()->count(), 0);
        EXPECT_EQ(QApplication::focusWidget(), campo());
    }
    enEuskera();
    mostrar(u"aurkibidea.htm");
    EXPECT_EQ(frase(), QString());
    buscar(u"herensuge");
    EXPECT_EQ(frase(), QStringLiteral("Ez dago hitz horiek dituen orririk."));
    buscar(u"zerrenda");
    EXPECT_EQ(frase(), QStringLiteral("Orri bat aurkitu da."));
}

TEST_F(Buscador, TheFieldHasALabelAndNames) {
    const struct {
        bool euskera;
        const char16_t* tema;
        const char16_t* campo;
        const char16_t* ficha;
    } filas[] = {{false, u"indice.htm", u"Palabras que se buscan", u"&Buscar"},
                 {true, u"aurkibidea.htm", u"Bilatu beharreko hitzak", u"&Bilatu"}};
    for (const auto& fila : filas) {
        if (fila.euskera) enEuskera();
        mostrar(fila.tema);
        EXPECT_EQ(campo()->accessibleName(), QString::fromUtf16(fila.campo));
        EXPECT_FALSE(lista()->accessibleName().isEmpty());
        EXPECT_FALSE(arbol()->accessibleName().isEmpty());
        EXPECT_FALSE(navegador()->accessibleName().isEmpty());
        EXPECT_EQ(ventana()->findChild<QTabWidget*>()->tabText(1), QString::fromUtf16(fila.ficha));
        bool etiqueta = false;
        for (const auto* rotulo : ventana()->findChildren<QLabel*>())
            etiqueta = etiqueta || rotulo->buddy() == campo();
        EXPECT_TRUE(etiqueta);
    }
}

}  // namespace
}  // namespace padral::pruebas
