// Which buttons show and which are on, by mode; their captions and access keys.

#include <QAccessible>
#include <QSet>

#include "screen_fixture.h"

namespace padral::pruebas {
namespace {

/// "visible" and "on" as letters: "vo", "v-", "--".
QString estadoDe(const QWidget* boton) {
    return QString(boton->isVisible() ? u'v' : u'-') + (boton->isEnabled() ? u'o' : u'-');
}

struct CasoBoton {
    const char16_t* boton;
    const char16_t *lista, *vacia, *busqueda, *columna, *conCriterios;
};

/// States in list mode, with an empty result, in search mode, with a column in hand, and after a
/// search.
constexpr CasoBoton ParaAbrir[] = {
    {u"cmdVerDeclaracion", u"vo", u"v-", u"v-", u"v-", u"vo"},
    {u"CmdCopiarDeclaracion", u"vo", u"v-", u"v-", u"v-", u"vo"},
    {u"CmdNuevo", u"vo", u"vo", u"v-", u"v-", u"vo"},
    {u"CmdEliminar", u"-", u"-", u"-", u"-", u"-"},
    {u"cmdAnterior", u"vo", u"vo", u"vo", u"vo", u"vo"},
    {u"cmdBuscar", u"vo", u"vo", u"v-", u"vo", u"vo"},
    {u"cmdTodos", u"v-", u"vo", u"v-", u"v-", u"vo"},
};
constexpr CasoBoton ParaEliminar[] = {
    {u"cmdVerDeclaracion", u"-", u"-", u"-", u"-", u"-"},
    {u"CmdCopiarDeclaracion", u"-", u"-", u"-", u"-", u"-"},
    {u"CmdNuevo", u"-", u"-", u"-", u"-", u"-"},
    {u"CmdEliminar", u"vo", u"v-", u"v-", u"v-", u"vo"},
    {u"cmdAnterior", u"vo", u"vo", u"vo", u"vo", u"vo"},
    {u"cmdBuscar", u"vo", u"vo", u"v-", u"vo", u"vo"},
    {u"cmdTodos", u"v-", u"vo", u"v-", u"v-", u"vo"},
};

class BotonesLista : public PantallaLista {
protected:
    void comprobar(std::span<const CasoBoton> tabla, const char16_t* CasoBoton::*momento) {
        for (const auto& caso : tabla) {
            const QString esperado = QString::fromUtf16(caso.*momento);
            // A hidden button counts as hidden only.
            EXPECT_EQ(estadoDe(control(caso.boton)).left(esperado.size()), esperado)
                << QString::fromUtf16(caso.boton).toStdString();
        }
    }
    void recorrer(std::span<const CasoBoton> tabla, const QString& entrada) {
        abrir(entrada);
        comprobar(tabla, &CasoBoton::lista);
        pulsar(u"cmdBuscar");
        comprobar(tabla, &CasoBoton::busqueda);
        pulsarCelda(1, 2);
        comprobar(tabla, &CasoBoton::columna);
        escribir(u"zz");
        pulsar(u"cmdBuscar");
        comprobar(tabla, &CasoBoton::vacia);
        pulsar(u"cmdTodos");
        comprobar(tabla, &CasoBoton::lista);
        pulsar(u"cmdBuscar");
        pulsarCelda(1, 2);
        escribir(u"a");
        pulsar(u"cmdBuscar");
        comprobar(tabla, &CasoBoton::conCriterios);
    }
};

TEST_F(BotonesLista, ParaAbrir) { recorrer(ParaAbrir, QStringLiteral("A")); }
TEST_F(BotonesLista, ParaEliminar) { recorrer(ParaEliminar, QStringLiteral("E")); }

TEST_F(BotonesLista, RotulosDeBuscar) {
    abrir(QStringLiteral("A"));
    auto* buscar = control<QPushButton>(u"cmdBuscar");
    EXPECT_EQ(buscar->text(), QStringLiteral("&Búsqueda"));
    pulsar(u"cmdBuscar");
    EXPECT_EQ(buscar->text(), QStringLiteral("&Resultado"));
    pulsarCelda(1, 1);
    pulsar(u"cmdBuscar");
    EXPECT_EQ(buscar->text(), QStringLiteral("&Búsqueda"));
}

TEST_F(BotonesLista, RotulosEnLosDosIdiomas) {
    const std::pair<const char16_t*, int> casos[] = {
        {u"CmdEliminar", 565}, {u"CmdNuevo", 563}, {u"cmdTodos", 558}, {u"cmdAnterior", 408}};
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        abrir(QStringLiteral("A"));
        for (const auto& [boton, id] : casos)
            EXPECT_EQ(control<QPushButton>(boton)->text(), texto(id));
        EXPECT_EQ(
            control<QPushButton>(u"cmdVerDeclaracion")->text(),
            euskera ? QStringLiteral("&Ikusi aitorpena") : QStringLiteral("&Ver Declaración"));
    }
}

TEST_F(BotonesLista, AyudasEnLosDosIdiomas) {
    const std::pair<const char16_t*, int> casos[] = {
        {u"cmdVerDeclaracion", 567},    {u"CmdNuevo", 564}, {u"CmdEliminar", 566},
        {u"CmdCopiarDeclaracion", 569}, {u"cmdTodos", 559}, {u"cmdAnterior", 557}};
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        abrir(QStringLiteral("A"));
        for (const auto& [boton, id] : casos) EXPECT_EQ(control(boton)->toolTip(), texto(id)) << id;
        EXPECT_EQ(control(u"cmdBuscar")->toolTip(), texto(561));
        pulsar(u"cmdBuscar");
        EXPECT_EQ(control(u"cmdBuscar")->toolTip(), texto(570));
    }
    EXPECT_EQ(control(u"cmdAnterior")->toolTip(),
              QStringLiteral("Zerrenda itxi eta menu nagusira joango da"));
    EXPECT_EQ(control(u"picasc")->toolTip(), QStringLiteral("Goranzko ordena"));
    EXPECT_EQ(control(u"picdesc")->toolTip(), QStringLiteral("Beheranzko ordena"));
}

TEST_F(BotonesLista, LasTeclasDeAccesoNoSeRepiten) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        for (const auto* entrada : {u"A", u"E"}) {
            abrir(QString::fromUtf16(entrada));
            QSet<QChar> teclas;
            for (const auto* boton : pantalla->findChildren<QPushButton*>()) {
                if (!boton->isVisible()) continue;
                const auto donde = boton->text().indexOf(u'&');
                ASSERT_GE(donde, 0) << boton->text().toStdString();
                const QChar letra = boton->text().at(donde + 1).toUpper();
                EXPECT_FALSE(teclas.contains(letra)) << boton->text().toStdString();
                teclas.insert(letra);
            }
        }
    }
}

TEST_F(BotonesLista, TodoControlTieneNombreAccesible) {
    abrir(QStringLiteral("A"));
    pulsar(u"cmdBuscar");
    pulsarCelda(1, 4);
    const char16_t* nombres[] = {u"flxDeclaraciones", u"txtBusqueda", u"picasc",
                                 u"picdesc",          u"lblayuda",    u"cmdVerDeclaracion",
                                 u"CmdEliminar",      u"CmdNuevo",    u"CmdCopiarDeclaracion",
                                 u"cmdAnterior",      u"cmdBuscar",   u"cmdTodos"};
    for (const auto* nombre : nombres) {
        auto* accesible = QAccessible::queryAccessibleInterface(control(nombre));
        ASSERT_NE(accesible, nullptr);
        EXPECT_FALSE(accesible->text(QAccessible::Name).trimmed().isEmpty())
            << QString::fromUtf16(nombre).toStdString();
    }
    EXPECT_EQ(caja()->accessibleName(), QStringLiteral("Fecha Declar."));
}

// The criteria row has no other words than its header.
TEST_F(BotonesLista, LasCeldasDeCriteriosDicenSuColumna) {
    const auto nombre = [this](int c) {
        return rejilla()->model()->index(0, c).data(Qt::AccessibleTextRole).toString();
    };
    abrir(QStringLiteral("A"));
    EXPECT_EQ(nombre(2), QString()) << "a row of the list says its own text";
    pulsar(u"cmdBuscar");
    EXPECT_EQ(nombre(2), QStringLiteral("Apellidos y Nombre"));
    EXPECT_EQ(nombre(6), QStringLiteral("Apartados"));
    pulsarCelda(1, 2);
    escribir(u"ga");
    pulsarCelda(1, 1);
    EXPECT_EQ(nombre(2), QStringLiteral("Apellidos y Nombre: GA"));
    EXPECT_EQ(nombre(1), QStringLiteral("NIF"));
}

}  // namespace
}  // namespace padral::pruebas
