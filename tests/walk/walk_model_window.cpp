// What holds after every step: one screen, its controls like the records, menus and focus.

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QMenu>
#include <QPushButton>

#include "ui/screen.h"
#include "walk/walk_controls.h"
#include "walk/walk_model.h"

namespace padral::pruebas {

void ModeloDelPaseo::cotejarVentana(const Momento& ahora) {
    qsizetype abiertas = 0;
    for (const auto* pantalla : programa_.ventana().findChildren<Pantalla*>())
        if (pantalla->isVisible()) ++abiertas;
    if (abiertas > 1) falta(QStringLiteral("%1 screens are open").arg(abiertas));
    if (ahora.formulario == QStringLiteral("FrmImOf")) return;
    const auto* pantalla = PantallaAbierta(programa_.ventana());
    cotejarMenus(pantalla != nullptr);
    if (!pantalla) return;
    const bool euskera = programa_.estado().DesplazamientoIdioma != 0;
    for (const auto& d : Desacuerdos(*pantalla, ahora.retrato, euskera, silenciosos(ahora)))
        falta(d);
    if (ahora.formulario == QStringLiteral("FrmDatGen")) cotejarGenerales(*pantalla, ahora);
    cotejarFoco(pantalla);
}

/// Controls that may show something else than the records hold.
QStringList ModeloDelPaseo::silenciosos(const Momento& ahora) const {
    QStringList nombres{ahora.pendiente};
    if (sorda_) nombres << QStringLiteral("optResidente(0)") << QStringLiteral("optResidente(1)");
    return nombres;
}

void ModeloDelPaseo::cotejarMenus(bool abierta) {
    const auto& ventana = programa_.ventana();
    const bool hay = !abierta && !almacen_.value(QStringLiteral("TDeclaraciones")).isEmpty();
    const std::pair<const char16_t*, bool> ordenes[] = {{u"Nueva", !abierta},
                                                        {u"Abrir", hay},
                                                        {u"Borrar", hay},
                                                        {u"Salir", true},
                                                        {u"Ayuda", true}};
    for (const auto& [nombre, activa] : ordenes)
        if (ventana.findChild<QAction*>(QString::fromUtf16(nombre))->isEnabled() != activa)
            falta(QString::fromUtf16(nombre) +
                  (activa ? QStringLiteral(" is off") : QStringLiteral(" is on")));
    for (const auto* nombre : {u"mnudeclaraciones", u"mnuutilidades"})
        if (ventana.findChild<QMenu*>(QString::fromUtf16(nombre))->isEnabled() == abierta)
            falta(QString::fromUtf16(nombre) + QStringLiteral(" is on or off at the wrong time"));
}

/// The keyboard always works on something that the user sees.
void ModeloDelPaseo::cotejarFoco(const QWidget* pantalla) {
    const auto* foco = QApplication::focusWidget();
    if (!foco) return falta(QStringLiteral("nothing has the focus"));
    if (!pantalla->isAncestorOf(foco))
        falta(QStringLiteral("the focus is out of the screen, in ") + foco->objectName());
    if (!foco->isVisible() || !foco->isEnabled())
        falta(QStringLiteral("the focus is in something hidden or off: ") + foco->objectName());
}

void ModeloDelPaseo::cotejarGenerales(const QWidget& pantalla, const Momento& ahora) {
    constexpr std::pair<const char16_t*, const char16_t*> Parejas[] = {
        {u"chkApartado2", u"cmdApartado2"}, {u"chkApartado3", u"cmdApartado3"},
        {u"chkApartado4", u"cmdApartado4"}, {u"chkApartado5", u"cmdApartado5"},
        {u"chkApartado6", u"cmdApartado6"}, {u"chkApartado7", u"cmdApartado7"},
        {u"chkApartado8", u"cmdAnexo"},     {u"chkAnexoII", u"cmdAnexoII"}};
    for (const auto& [casilla, boton] : Parejas) {
        const auto* marca = pantalla.findChild<QCheckBox*>(QString::fromUtf16(casilla));
        const auto* orden = pantalla.findChild<QPushButton*>(QString::fromUtf16(boton));
        if (orden->isEnabled() != marca->isChecked())
            falta(orden->objectName() + QStringLiteral(" does not follow its box"));
    }
    const bool anterior =
        pantalla.findChild<QPushButton*>(QStringLiteral("cmdAnterior"))->isEnabled();
    if (anterior == ahora.pendientes)
        falta(QStringLiteral("cmdAnterior is wrong about the changes"));
    const QString causa = ahora.retrato.value(QStringLiteral("G.Causa1"));
    const QString origen = causa == u'M'   ? QStringLiteral("G.FechaModificacion")
                           : causa == u'C' ? QStringLiteral("6.FECHACESE")
                                           : QStringLiteral("3.FechaInicio");
    if (ahora.retrato.value(QStringLiteral("G.FECHAVIGOR")) != ahora.retrato.value(origen))
        falta(QStringLiteral("the effective date is not ") + origen);
}

}  // namespace padral::pruebas
