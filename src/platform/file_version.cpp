#include "platform/file_version.h"

#include <QByteArrayMatcher>
#include <QByteArrayView>
#include <QFile>
#include <QtEndian>

#include "platform/version_marker.h"

namespace padral {

namespace {

constexpr qsizetype TamanoBloque = 52;
constexpr quint32 Firma = 0xFEEF04BD;

// Read as volatile, so that no compiler works the marker out and puts it into the program.
QByteArray marca() {
    const volatile std::uint8_t* invertida = MarcaVersionInvertida.data();
    QByteArray bytes;
    for (std::size_t i = 0; i < MarcaVersionInvertida.size(); ++i)
        bytes.append(static_cast<char>(~invertida[i]));
    return bytes;
}

quint32 campo(const QByteArray& bloque, qsizetype indice) {
    return qFromLittleEndian<quint32>(bloque.constData() + 4 * indice);
}

QByteArray buscarBloque(const QByteArray& contenido) {
    const QByteArrayMatcher buscador(marca());
    for (qsizetype p = buscador.indexIn(contenido); p >= 0;
         p = buscador.indexIn(contenido, p + 1)) {
        QByteArray bloque =
            contenido.mid(p + qsizetype{MarcaVersionInvertida.size()}, TamanoBloque);
        if (bloque.size() == TamanoBloque && campo(bloque, 0) == Firma) return bloque;
    }
    return {};
}

// Empty when the file cannot be read or has none.
QByteArray leerBloque(const QString& ruta) {
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadOnly)) return {};
    const qint64 tamano = fichero.size();
    const uchar* mapa = tamano > 0 ? fichero.map(0, tamano) : nullptr;
    if (!mapa) return {};
    return buscarBloque(
        QByteArray::fromRawData(reinterpret_cast<const char*>(mapa), qsizetype{tamano}));
}

std::array<quint16, 4> palabras(quint32 alta, quint32 baja) {
    return {static_cast<quint16>(alta >> 16), static_cast<quint16>(alta),
            static_cast<quint16>(baja >> 16), static_cast<quint16>(baja)};
}

}  // namespace

int TamanoVersion(const QString& ruta) { return static_cast<int>(leerBloque(ruta).size()); }

std::optional<VersionFichero> LeerVersion(const QString& ruta) {
    const QByteArray bloque = leerBloque(ruta);
    if (bloque.isEmpty()) return std::nullopt;
    return VersionFichero{palabras(campo(bloque, 2), campo(bloque, 3)),
                          palabras(campo(bloque, 4), campo(bloque, 5))};
}

}  // namespace padral
