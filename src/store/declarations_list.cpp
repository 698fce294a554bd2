#include "store/declarations_server.h"

namespace padral::SvrDPadral {

namespace {

// Place of a column among the texts of a row; below 0 for the numbers.
constexpr std::array<int, 8> PosicionTexto{-1, 0, 1, 2, -1, 3, 4, 5};

}  // namespace

QString ListaDeclaraciones::texto(Columna columna, int fila) const {
    const int posicion = PosicionTexto[static_cast<std::size_t>(columna)];
    if (posicion < 0) return {};
    const auto& inicio = filas_[static_cast<std::size_t>(fila)].inicio;
    const auto i = static_cast<std::size_t>(posicion);
    return QString::fromUtf8(textos_.constData() + inicio[i],
                             static_cast<qsizetype>(inicio[i + 1] - inicio[i]));
}

QVariant ListaDeclaraciones::operator()(int columna, int fila) const {
    if (columna < Csde || columna > Causa2 || fila < 0 || fila >= Filas()) return {};
    if (columna == Csde) return csde(fila);
    if (columna == FechaDeclaracion) return fecha(fila);
    return texto(static_cast<Columna>(columna), fila);
}

void ListaDeclaraciones::Vaciar() {
    filas_.clear();
    textos_.clear();
}

void ListaDeclaraciones::Reservar(int filas) {
    constexpr qsizetype BytesPorFila = 64;
    filas_.reserve(static_cast<std::size_t>(filas));
    textos_.reserve(filas * BytesPorFila);
}

void ListaDeclaraciones::Anadir(qint32 csde, qint32 fecha,
                                const std::array<std::string_view, 6>& textos) {
    FilaCompacta fila{csde, fecha, {}};
    for (std::size_t i = 0; i < NumTextos; ++i) {
        fila.inicio[i] = static_cast<quint32>(textos_.size());
        textos_.append(textos[i].data(), static_cast<qsizetype>(textos[i].size()));
    }
    fila.inicio[NumTextos] = static_cast<quint32>(textos_.size());
    filas_.push_back(fila);
}

}  // namespace padral::SvrDPadral
