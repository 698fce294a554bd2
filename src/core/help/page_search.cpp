#include "core/help/page_search.h"

#include <QDir>
#include <QFile>
#include <QTextDocument>

#include "core/help/text_match.h"

namespace padral {

namespace {

constexpr qsizetype Antes = 30;
constexpr qsizetype LargoExtracto = 90;

// Begins and ends at a blank.
QString extracto(const QString& texto, const QStringList& palabras) {
    const auto apariciones = Apariciones(texto, palabras);
    if (apariciones.isEmpty()) return {};
    const auto vista = apariciones.front().inicio;
    const auto desde = vista <= Antes ? 0 : texto.lastIndexOf(u' ', vista - Antes) + 1;
    auto hasta = texto.indexOf(u' ', desde + LargoExtracto);
    if (hasta < 0) hasta = texto.size();
    const QString corte = QStringLiteral("…");
    return (desde > 0 ? corte : QString()) + texto.mid(desde, hasta - desde) +
           (hasta < texto.size() ? corte : QString());
}

}  // namespace

QString LeerPagina(const QString& fichero) {
    QFile pagina(fichero);
    if (!pagina.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(pagina.readAll()).normalized(QString::NormalizationForm_C);
}

QList<Hallazgo> BuscarPaginas(const QString& carpeta, const QList<PaginaContenido>& contenido,
                              const QStringList& palabras) {
    QList<Hallazgo> hallazgos;
    if (palabras.isEmpty()) return hallazgos;
    for (const auto& cada : contenido) {
        QTextDocument documento;
        documento.setHtml(LeerPagina(QDir(carpeta).filePath(cada.pagina)));
        const QString texto = documento.toPlainText().simplified();
        if (ContieneTodas(texto, palabras))
            hallazgos.append({cada.pagina, cada.titulo, extracto(texto, palabras)});
    }
    return hallazgos;
}

}  // namespace padral
