#pragma once
// Checks that hold for every record: which position writes which property, and the round trip.

#include <gtest/gtest.h>

#include <QString>
#include <QVariant>
#include <ostream>
#include <span>
#include <string>
#include <vector>

#include "core/record_table.h"
#include "support/print_text.h"

namespace padral::pruebas {

inline QString q(const char16_t* texto) { return QString::fromUtf16(texto); }
/// For messages of failed checks.
inline std::string s(const char16_t* texto) { return q(texto).toStdString(); }

/// What a position must be: the property's name and how a test reads that property.
template <class R>
struct Campo {
    QString nombre;
    QVariant (*leer)(const R&);
};

/// A property under its own name.
#define CAMPO(R, propiedad)                                                \
    Campo<R> {                                                             \
        q(u"" #propiedad), [](const R& r) { return deCampo(r.propiedad); } \
    }

template <class T>
QVariant deCampo(const T& valor) {
    if constexpr (std::is_same_v<T, float>)
        return QVariant(valor);
    else if constexpr (std::is_arithmetic_v<T>)
        return QVariant(static_cast<int>(valor));
    else
        return QVariant(static_cast<const QString&>(valor));
}

/// A value for a position that no other position has, of the width and type that it takes.
template <class R>
QVariant valorDistinto(const Columna<R>& columna, int posicion) {
    const QVariant vacio = columna.leer(R{});
    if (vacio.typeId() == QMetaType::Float) return QVariant(33.25F);
    if (vacio.typeId() != QMetaType::QString) return QVariant(101 + posicion);
    const auto ancho = vacio.toString().size();
    if (ancho == 1) return QString(QChar(static_cast<char16_t>(u'A' + posicion % 26)));
    const QString texto = QStringLiteral("t%1").arg(posicion);
    return ancho == 0 ? texto : texto.leftJustified(ancho, u' ');
}

template <class R>
Fila filaDistinta(std::span<const Columna<R>> tabla) {
    Fila fila;
    for (const auto& c : tabla) fila.append(valorDistinto(c, static_cast<int>(fila.size())));
    return fila;
}

/// The table has exactly the fields in their order, and each position writes its field and no
/// other one.
template <class R>
void comprobarPosiciones(std::span<const Columna<R>> tabla, const std::vector<Campo<R>>& campos) {
    ASSERT_EQ(tabla.size(), campos.size());
    for (std::size_t i = 0; i < campos.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(QString::fromUtf16(tabla[i].nombre), campos[i].nombre);
        R registro;
        const QVariant valor = valorDistinto(tabla[i], static_cast<int>(i));
        tabla[i].escribir(registro, valor);
        for (std::size_t j = 0; j < campos.size(); ++j)
            EXPECT_EQ(campos[j].leer(registro), j == i ? valor : campos[j].leer(R{})) << j;
    }
}

/// An array loaded and given back is the same, and a row of invalid values gives empty ones.
template <class R>
void comprobarIdaYVuelta(std::span<const Columna<R>> tabla) {
    const Fila fila = filaDistinta(tabla);
    R registro;
    CargarDeFila<R>(registro, tabla, fila);
    EXPECT_EQ(FilaDe<R>(registro, tabla), fila);
    CargarDeFila<R>(registro, tabla, Fila{});
    EXPECT_TRUE(registro == R{});
}

}  // namespace padral::pruebas
