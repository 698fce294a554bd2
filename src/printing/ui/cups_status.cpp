#include "printing/ui/cups_status.h"

#include <QLibrary>

namespace padral {
namespace {

// The library that the toolkit has loaded for its own requests, found by its name: the program
// needs no CUPS to build or to run.
template <class Funcion>
Funcion Buscar(const char* nombre) {
    constexpr int VersionBiblioteca = 2;
    QLibrary cups(QStringLiteral("cups"), VersionBiblioteca);
    return reinterpret_cast<Funcion>(cups.resolve(nombre));
}

// Statuses of the Internet Printing Protocol (RFC 8011, 4.1.2): up to this one a request succeeded.
constexpr int UltimoExito = 0x00FF;

}  // namespace

QString FalloDelServicioDeImpresion() {
    const auto estado = Buscar<int (*)()>("cupsLastError");
    const auto texto = Buscar<const char* (*)()>("cupsLastErrorString");
    if (estado == nullptr || texto == nullptr) return {};
    const int respuesta = estado();
    if (respuesta >= 0 && respuesta <= UltimoExito) return {};
    const QString motivo = QString::fromLocal8Bit(texto());
    return motivo.isEmpty() ? QString::number(respuesta) : motivo;
}

}  // namespace padral
