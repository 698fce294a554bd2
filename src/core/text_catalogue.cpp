#include "core/text_catalogue.h"

#include <QFile>

// A resource of a static library is not registered by itself.
static void registrarRecursos() { Q_INIT_RESOURCE(texts); }

namespace padral {

namespace {

QByteArray tablaCompilada() {
    registrarRecursos();
    QFile fichero(QStringLiteral(":/padral/texts.tsv"));
    if (!fichero.open(QIODevice::ReadOnly))
        throw std::runtime_error("the text catalogue is not compiled in");
    return fichero.readAll();
}

}  // namespace

TextoAusente::TextoAusente(int id) : std::out_of_range("catalogue text " + std::to_string(id)) {}

CatalogoTextos::CatalogoTextos() : CatalogoTextos(tablaCompilada()) {}

CatalogoTextos::CatalogoTextos(const QByteArray& tsv) {
    const auto lineas = QString::fromUtf8(tsv).split(u'\n');
    for (qsizetype i = 1; i < lineas.size(); ++i) {
        if (lineas[i].isEmpty()) continue;
        const auto partes = lineas[i].split(u'\t');
        const auto id = static_cast<std::size_t>(partes.value(0).toUInt());
        if (partes.size() != 3 || id == 0)
            throw std::runtime_error("text catalogue: bad line " + std::to_string(i + 1));
        for (int idioma = 0; idioma < 2; ++idioma) {
            auto& tabla = textos_[idioma];
            if (tabla.size() <= id) tabla.resize(id + 1);
            if (partes[idioma + 1] == QStringLiteral("\\N")) continue;
            tabla[id] = {partes[idioma + 1], true};
            ++cuenta_[idioma];
        }
    }
}

bool CatalogoTextos::Existe(int id) const {
    const bool euskera = id >= DesplazamientoEuskera;
    const auto& tabla = textos_[euskera ? 1 : 0];
    const auto indice = static_cast<std::size_t>(euskera ? id - DesplazamientoEuskera : id);
    return id > 0 && indice < tabla.size() && tabla[indice].existe;
}

const QString& CatalogoTextos::Texto(int id) const {
    if (!Existe(id)) throw TextoAusente(id);
    const bool euskera = id >= DesplazamientoEuskera;
    return textos_[euskera ? 1 : 0]
                  [static_cast<std::size_t>(euskera ? id - DesplazamientoEuskera : id)]
                      .texto;
}

}  // namespace padral
