#pragma once
// A record is fields plus one table: store position -> member. Loading from and storing to an
// array of values walk that table.

#include <QStringView>
#include <span>
#include <type_traits>

#include "core/fixed_text.h"
#include "store/row.h"

namespace padral {

/// One position of a record's array: the name of the property and how it is read and written.
template <class Registro>
struct Columna {
    const char16_t* nombre;
    QVariant (*leer)(const Registro&);
    void (*escribir)(Registro&, const QVariant&);
};

namespace detalle {

template <class T>
QVariant aVariante(const T& valor) {
    if constexpr (std::is_arithmetic_v<T>)
        if constexpr (std::is_floating_point_v<T>)
            return QVariant(valor);
        else
            return QVariant(static_cast<int>(valor));
    else
        return QVariant(static_cast<const QString&>(valor));
}

template <class T>
void deVariante(T& miembro, const QVariant& valor) {
    if constexpr (std::is_floating_point_v<T>)
        miembro = static_cast<T>(valor.toDouble());
    else if constexpr (std::is_arithmetic_v<T>)
        miembro = static_cast<T>(valor.toLongLong());
    else
        miembro = valor.isNull() ? QStringLiteral("") : valor.toString();
}

template <class Registro, auto Primero, auto... Resto>
auto& miembro(Registro& r) {
    if constexpr (sizeof...(Resto) == 0)
        return r.*Primero;
    else {
        auto& parte = r.*Primero;
        return miembro<std::remove_reference_t<decltype(parte)>, Resto...>(parte);
    }
}

}  // namespace detalle

/// Makes the entry of a member: `columna<R, &R::DNI>(u"DNI")`, or of a member of a part of the
/// record: `columna<R, &R::Fis, &BloqueDireccion::Numero>(u"NumeroFis")`.
template <class Registro, auto... Miembros>
constexpr Columna<Registro> columna(const char16_t* nombre) {
    return {nombre,
            [](const Registro& r) -> QVariant {
                return detalle::aVariante(detalle::miembro<const Registro, Miembros...>(r));
            },
            [](Registro& r, const QVariant& v) {
                detalle::deVariante(detalle::miembro<Registro, Miembros...>(r), v);
            }};
}

/// Copies an array into a record. Missing or null positions read as "", 0 or blank by type.
template <class Registro>
void CargarDeFila(Registro& registro, std::span<const Columna<Registro>> tabla, const Fila& fila) {
    qsizetype i = 0;
    for (const auto& c : tabla) c.escribir(registro, fila.value(i++));
}

/// The array of a record, in store order.
template <class Registro>
Fila FilaDe(const Registro& registro, std::span<const Columna<Registro>> tabla) {
    Fila fila;
    fila.reserve(static_cast<qsizetype>(tabla.size()));
    for (const auto& c : tabla) fila.append(c.leer(registro));
    return fila;
}

}  // namespace padral
