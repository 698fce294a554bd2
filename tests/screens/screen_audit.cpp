#include "screens/screen_audit.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTabBar>
#include <QTextDocument>
#include <QToolButton>

#include "core/text_catalogue.h"

namespace padral::pruebas {

namespace {

QString nombre(const QWidget& w) {
    QString propio = w.objectName();
    if (propio.isEmpty()) propio = QString::fromLatin1(w.metaObject()->className());
    return propio;
}

QString sinMarcas(QString texto) {
    if (Qt::mightBeRichText(texto)) {
        QTextDocument documento;
        documento.setHtml(texto);
        texto = documento.toPlainText();
    }
    return texto.remove(u'&').simplified();
}

// Parts of a control that the toolkit makes for itself.
bool esInterno(const QWidget& w) { return w.objectName().startsWith(u"qt_"); }

void añadirOrdenes(QList<Rotulo>& lista, const QList<QAction*>& ordenes, const QString& control) {
    for (const QAction* orden : ordenes)
        for (const QString& texto : {orden->text(), orden->toolTip()})
            if (orden->isVisible()) lista.append({control + u'.' + orden->objectName(), texto});
}

void añadirPestañas(QList<Rotulo>& lista, const QTabBar& barra) {
    for (int i = 0; i < barra.count(); ++i)
        for (const QString& texto : {barra.tabText(i), barra.tabToolTip(i)})
            lista.append({nombre(barra), texto});
}

void añadirCabecera(QList<Rotulo>& lista, const QHeaderView& cabecera) {
    const QString dueño = cabecera.parentWidget() ? nombre(*cabecera.parentWidget()) : QString();
    for (int i = 0; cabecera.model() && i < cabecera.count(); ++i)
        if (!cabecera.isSectionHidden(i))
            lista.append(
                {dueño, cabecera.model()->headerData(i, cabecera.orientation()).toString()});
}

void añadir(QList<Rotulo>& lista, const QWidget& w) {
    const QString control = nombre(w);
    for (const QString& texto : {w.toolTip(), w.accessibleName(), w.accessibleDescription()})
        lista.append({control, texto});
    if (const auto* etiqueta = qobject_cast<const QLabel*>(&w))
        lista.append({control, etiqueta->text()});
    if (const auto* boton = qobject_cast<const QAbstractButton*>(&w))
        lista.append({control, boton->text()});
    if (const auto* grupo = qobject_cast<const QGroupBox*>(&w))
        lista.append({control, grupo->title()});
    if (const auto* campo = qobject_cast<const QLineEdit*>(&w))
        lista.append({control, campo->placeholderText()});
    if (const auto* barra = qobject_cast<const QTabBar*>(&w)) añadirPestañas(lista, *barra);
    if (const auto* cabecera = qobject_cast<const QHeaderView*>(&w))
        añadirCabecera(lista, *cabecera);
    if (const auto* menu = qobject_cast<const QMenu*>(&w)) {
        lista.append({control, menu->title()});
        añadirOrdenes(lista, menu->actions(), control);
    }
}

// ---------------------------------------------------------------------------- what is cut off

QSize medida(const QWidget& w, const QString& texto) {
    return w.fontMetrics().size(Qt::TextShowMnemonic, texto);
}

bool cabe(const QSize& texto, const QRect& sitio) {
    return texto.width() <= sitio.width() && texto.height() <= sitio.height();
}

bool cabe(const QLabel& etiqueta) {
    if (etiqueta.text().isEmpty()) return true;
    if (etiqueta.wordWrap()) return etiqueta.heightForWidth(etiqueta.width()) <= etiqueta.height();
    if (Qt::mightBeRichText(etiqueta.text()))
        return etiqueta.sizeHint().width() <= etiqueta.width();
    return cabe(medida(etiqueta, etiqueta.text()), etiqueta.contentsRect());
}

bool cabe(const QAbstractButton& boton) {
    if (boton.text().isEmpty()) return true;
    if (qobject_cast<const QToolButton*>(&boton)) return boton.sizeHint().width() <= boton.width();
    // The hint of a button holds room to spare around the caption; half of it may go.
    const QSize justa = medida(boton, boton.text());
    const int holgura = (boton.sizeHint().width() - justa.width()) / 2;
    const int icono = boton.icon().isNull() ? 0 : boton.iconSize().width();
    return justa.width() + std::max(icono, holgura) <= boton.width() &&
           justa.height() <= boton.height();
}

bool cabe(const QTabBar& barra) {
    int ancho = 0;
    for (int i = 0; i < barra.count(); ++i) {
        const QSize texto = medida(barra, barra.tabText(i));
        if (!cabe(texto, barra.tabRect(i))) return false;
        ancho += barra.tabRect(i).width();
    }
    return ancho <= barra.width();
}

bool cabe(const QHeaderView& cabecera) {
    for (int i = 0; cabecera.model() && i < cabecera.count(); ++i) {
        const QVariant texto = cabecera.model()->headerData(i, cabecera.orientation());
        if (cabecera.isSectionHidden(i)) continue;
        if (medida(cabecera, texto.toString()).width() > cabecera.sectionSize(i)) return false;
    }
    return true;
}

// The list of a combo elides rows that are wider than the combo, unless its view asks for more.
bool cabe(const QComboBox& combo) {
    const int ancho = std::max(combo.width(), combo.view()->minimumWidth());
    for (int i = 0; i < combo.count(); ++i)
        if (combo.fontMetrics().horizontalAdvance(combo.itemText(i)) > ancho) return false;
    return true;
}

bool cabeLoSuyo(const QWidget& w) {
    if (const auto* etiqueta = qobject_cast<const QLabel*>(&w)) return cabe(*etiqueta);
    if (const auto* boton = qobject_cast<const QAbstractButton*>(&w)) return cabe(*boton);
    if (const auto* grupo = qobject_cast<const QGroupBox*>(&w))
        return medida(*grupo, grupo->title()).width() <= grupo->width();
    if (const auto* barra = qobject_cast<const QTabBar*>(&w)) return cabe(*barra);
    if (const auto* cabecera = qobject_cast<const QHeaderView*>(&w))
        return cabecera->orientation() == Qt::Vertical || cabe(*cabecera);
    if (const auto* combo = qobject_cast<const QComboBox*>(&w)) return cabe(*combo);
    return true;
}

bool esControl(const QWidget& w) {
    if (esInterno(w)) return false;
    return qobject_cast<const QAbstractButton*>(&w) || qobject_cast<const QLineEdit*>(&w) ||
           qobject_cast<const QComboBox*>(&w) || qobject_cast<const QTabBar*>(&w) ||
           (qobject_cast<const QLabel*>(&w) && !static_cast<const QLabel&>(w).text().isEmpty());
}

// A scroll area shows what lies outside when asked; every other parent cuts it.
bool cortadoPorSuPadre(const QWidget& w) {
    const QWidget* padre = w.parentWidget();
    if (!padre || padre->objectName() == u"qt_scrollarea_viewport") return false;
    return !padre->rect().contains(w.geometry());
}

QStringList solapados(const QWidget& w) {
    QStringList hallados;
    const QWidget* padre = w.parentWidget();
    if (!padre) return hallados;
    const auto hermanos = padre->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (auto otro = hermanos.begin(); *otro != &w; ++otro)
        if ((*otro)->isVisible() && esControl(**otro) &&
            (*otro)->geometry().intersects(w.geometry()))
            hallados << nombre(**otro) + QStringLiteral(" and ") + nombre(w) +
                            QStringLiteral(" lie over one another");
    return hallados;
}

// ------------------------------------------------------------------------------- access keys

void teclasDe(const QWidget& w, QList<Rotulo>& lista, QStringList& faltas) {
    if (const auto* etiqueta = qobject_cast<const QLabel*>(&w)) {
        if (etiqueta->buddy())
            lista.append({nombre(w), etiqueta->text()});
        else if (etiqueta->text().contains(QRegularExpression(QStringLiteral("&[^&]"))) &&
                 !Qt::mightBeRichText(etiqueta->text()))
            faltas << nombre(w) + QStringLiteral(" shows an ampersand: ") + etiqueta->text();
    }
    if (const auto* boton = qobject_cast<const QAbstractButton*>(&w))
        lista.append({nombre(w), boton->text()});
    if (const auto* grupo = qobject_cast<const QGroupBox*>(&w))
        lista.append({nombre(w), grupo->title()});
    if (const auto* barra = qobject_cast<const QTabBar*>(&w))
        for (int i = 0; i < barra->count(); ++i) lista.append({nombre(w), barra->tabText(i)});
    if (const auto* barra = qobject_cast<const QMenuBar*>(&w))
        for (const QAction* orden : barra->actions())
            if (orden->isEnabled()) lista.append({nombre(w), orden->text()});
}

QStringList repetidas(const QList<Rotulo>& lista) {
    QMap<QString, Rotulo> visto;
    QStringList faltas;
    for (const Rotulo& r : lista) {
        const QString tecla = QKeySequence::mnemonic(r.texto).toString();
        if (tecla.isEmpty()) continue;
        if (visto.contains(tecla))
            faltas << QStringLiteral("%1: %2 \"%3\" and %4 \"%5\"")
                          .arg(tecla, visto[tecla].control, visto[tecla].texto, r.control, r.texto);
        else
            visto.insert(tecla, r);
    }
    return faltas;
}

// ----------------------------------------------------------------------------- other language

QSet<QString> textosDe(int desplazamiento) {
    const CatalogoTextos catalogo;
    QSet<QString> todos;
    for (int id = 1; id <= 881; ++id)
        if (catalogo.Existe(id + desplazamiento))
            todos.insert(sinMarcas(catalogo.Texto(id + desplazamiento)));
    return todos;
}

// Words and letters that the other language does not have.
const QRegularExpression& señales(bool deCastellano) {
    static const QRegularExpression castellano(
        QStringLiteral("[áéíóúÁÉÍÓÚ¿¡]|\\b(de|del|la|el|los|las|que|con|por|para|una|sin|no)\\b|"
                       "ci[oó]n\\b"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression euskera(
        QStringLiteral(
            "\\b(eta|edo|bat|da|du|ez|bai|ados|utzi|atala|aitorpena\\w*|zer\\w*ak)\\b|tz|"
            "k[oe]a\\b"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return deCastellano ? castellano : euskera;
}

}  // namespace

QList<Rotulo> Rotulos(const QWidget& ventana) {
    QList<Rotulo> lista{{nombre(ventana), ventana.windowTitle()}};
    añadir(lista, ventana);
    for (const QWidget* w : ventana.findChildren<QWidget*>())
        if (w->isVisibleTo(&ventana) || qobject_cast<const QMenu*>(w)) añadir(lista, *w);
    lista.removeIf([](const Rotulo& r) { return sinMarcas(r.texto).isEmpty(); });
    return lista;
}

QStringList RotulosCortados(const QWidget& ventana) {
    QStringList faltas;
    for (const QWidget* w : ventana.findChildren<QWidget*>()) {
        if (!w->isVisible() || esInterno(*w) || qobject_cast<const QMenu*>(w)) continue;
        if (!cabeLoSuyo(*w))
            faltas << QStringLiteral("%1 is cut off (%2 x %3)")
                          .arg(nombre(*w))
                          .arg(w->width())
                          .arg(w->height());
        if (!esControl(*w)) continue;
        if (cortadoPorSuPadre(*w)) faltas << nombre(*w) + QStringLiteral(" leaves its parent");
        faltas << solapados(*w);
    }
    return faltas;
}

QStringList TeclasRepetidas(const QWidget& ventana) {
    QList<Rotulo> lista;
    QStringList faltas;
    for (const QWidget* w : ventana.findChildren<QWidget*>()) {
        if (const auto* menu = qobject_cast<const QMenu*>(w)) {
            QList<Rotulo> propias;
            for (const QAction* orden : menu->actions())
                propias.append({nombre(*menu), orden->text()});
            faltas << repetidas(propias);
        } else {
            teclasDe(*w, lista, faltas);
        }
    }
    return faltas + repetidas(lista);
}

QStringList TextosEnOtroIdioma(const QWidget& ventana, bool euskera, const QStringList& bilingues) {
    static const QSet<QString> castellanos = textosDe(0);
    static const QSet<QString> vascos = textosDe(CatalogoTextos::DesplazamientoEuskera);
    const auto& propios = euskera ? vascos : castellanos;
    const auto& ajenos = euskera ? castellanos : vascos;
    QStringList faltas;
    for (const Rotulo& r : Rotulos(ventana)) {
        const QString texto = sinMarcas(r.texto);
        if (bilingues.contains(r.control) || propios.contains(texto)) continue;
        if (ajenos.contains(texto) || señales(euskera).match(texto).hasMatch())
            faltas << r.control + QStringLiteral(": ") + texto;
    }
    return faltas;
}

}  // namespace padral::pruebas
