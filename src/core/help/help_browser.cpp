#include "core/help/help_browser.h"

#include <QFileInfo>
#include <QTextBlock>

#include "core/help/page_search.h"
#include "core/help/text_match.h"

namespace padral {

NavegadorAyuda::NavegadorAyuda(QWidget* padre) : QTextBrowser(padre) {
    connect(this, &QTextBrowser::sourceChanged, this, [this] { setExtraSelections({}); });
}

void NavegadorAyuda::Abrir(const QString& fichero) {
    const QUrl direccion = QUrl::fromLocalFile(fichero);
    if (source() != direccion) {
        setSource(direccion);
        return;
    }
    setExtraSelections({});
    reload();
}

void NavegadorAyuda::Resaltar(const QStringList& palabras) {
    QList<ExtraSelection> marcas;
    for (const auto& tramo : Apariciones(document()->toRawText(), palabras)) {
        ExtraSelection marca;
        marca.cursor = QTextCursor(document());
        marca.cursor.setPosition(static_cast<int>(tramo.inicio));
        marca.cursor.setPosition(static_cast<int>(tramo.inicio + tramo.largo),
                                 QTextCursor::KeepAnchor);
        marca.format.setBackground(palette().highlight());
        marca.format.setForeground(palette().highlightedText());
        marcas.append(marca);
    }
    setExtraSelections(marcas);
    if (marcas.isEmpty()) return;
    QTextCursor primera = marcas.front().cursor;
    primera.setPosition(primera.selectionStart());
    setTextCursor(primera);
    ensureCursorVisible();
}

QVariant NavegadorAyuda::loadResource(int tipo, const QUrl& nombre) {
    if (tipo != QTextDocument::HtmlResource) return QTextBrowser::loadResource(tipo, nombre);
    const QUrl entera = source().resolved(nombre);
    const QFileInfo pagina(entera.toLocalFile());
    if (entera.isLocalFile() && pagina.isFile() && pagina.isReadable())
        return LeerPagina(pagina.filePath());
    const QString buscada = entera.isLocalFile() ? entera.fileName() : entera.toDisplayString();
    return QStringLiteral("<p>%1</p>").arg(SinPagina.arg(buscada.toHtmlEscaped()));
}

}  // namespace padral
