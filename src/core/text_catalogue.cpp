#include "core/text_catalogue.h"

#include <QFile>
#include <algorithm>
#include <set>

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

[[noreturn]] void rechazar(const std::string& que, qsizetype linea) {
    throw std::runtime_error("text catalogue: " + que + std::to_string(linea + 1));
}

// Number of a text, below those of the other language; 0 when it is none.
std::size_t numero(const QString& texto) {
    const bool cifras =
        std::all_of(texto.cbegin(), texto.cend(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    const uint leido = cifras ? texto.toUInt() : 0;
    return leido < CatalogoTextos::DesplazamientoEuskera ? leido : 0;
}

}  // namespace

TextoAusente::TextoAusente(int id) : std::out_of_range("catalogue text " + std::to_string(id)) {}

CatalogoTextos::CatalogoTextos() : CatalogoTextos(tablaCompilada()) {}

CatalogoTextos::CatalogoTextos(const QByteArray& tsv) {
    const auto lineas = QString::fromUtf8(tsv).split(u'\n');
    std::set<std::size_t> vistos;
    for (qsizetype i = 1; i < lineas.size(); ++i) {
        // Other systems end their lines with two characters.
        const QString linea = lineas[i].endsWith(u'\r') ? lineas[i].chopped(1) : lineas[i];
        if (linea.isEmpty()) continue;
        const auto partes = linea.split(u'\t');
        const auto id = numero(partes[0]);
        if (partes.size() != 3 || id == 0) rechazar("bad line ", i);
        if (!vistos.insert(id).second)
            rechazar("text " + std::to_string(id) + " again in line ", i);
        anotar(id, partes);
    }
}

void CatalogoTextos::anotar(std::size_t id, const QStringList& partes) {
    for (int idioma = 0; idioma < 2; ++idioma) {
        auto& tabla = textos_[idioma];
        if (tabla.size() <= id) tabla.resize(id + 1);
        if (partes[idioma + 1] == QStringLiteral("\\N")) continue;
        tabla[id] = {partes[idioma + 1], true};
        ++cuenta_[idioma];
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
