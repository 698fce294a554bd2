#include "stored_rows.h"

#include <sqlite3.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace padral::pruebas {

namespace {

const QString TablaGeneral = QStringLiteral("TDeclaraciones");
const QString TablaParticipes = QStringLiteral("TParticipes");
const QString ClaveDeclaracion = QStringLiteral("csde");
const QString ClaveParticipe = QStringLiteral("cspa");

using Base = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;
using Consulta = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

Base AbrirBase(const QString& fichero) {
    sqlite3* base = nullptr;
    if (sqlite3_open_v2(fichero.toUtf8().constData(), &base, SQLITE_OPEN_READONLY, nullptr) !=
        SQLITE_OK)
        throw std::runtime_error("cannot read " + fichero.toStdString());
    return {base, &sqlite3_close};
}

Consulta Preparar(const Base& base, const QString& sql) {
    sqlite3_stmt* consulta = nullptr;
    if (sqlite3_prepare_v2(base.get(), sql.toUtf8().constData(), -1, &consulta, nullptr) !=
        SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(base.get()));
    return {consulta, &sqlite3_finalize};
}

/// Numbers with decimals are of single precision.
QString Columna(const Consulta& consulta, int i) {
    if (sqlite3_column_type(consulta.get(), i) == SQLITE_FLOAT)
        return QString::number(sqlite3_column_double(consulta.get(), i), 'g', 7);
    const auto* texto = reinterpret_cast<const char*>(sqlite3_column_text(consulta.get(), i));
    return QString::fromUtf8(texto);
}

QStringList Tablas(const Base& base) {
    QStringList tablas;
    const auto consulta = Preparar(
        base, QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"));
    while (sqlite3_step(consulta.get()) == SQLITE_ROW) tablas << Columna(consulta, 0);
    tablas.removeIf([](const QString& tabla) {
        return tabla.startsWith(QStringLiteral("sqlite_")) ||
               tabla == QStringLiteral("TParticipesAux");
    });
    return tablas;
}

bool EsDelOrden(const QString& columna) {
    return columna.endsWith(QStringLiteral("Mayusculas")) ||
           (columna.endsWith(QStringLiteral("Clave")) && columna.size() > 5);
}

FilaGuardada LeerUna(const Consulta& consulta, const QString& tabla) {
    FilaGuardada fila{tabla, 0, 0, {}, {}};
    for (int i = 0; i < sqlite3_column_count(consulta.get()); ++i) {
        const QString nombre = QString::fromUtf8(sqlite3_column_name(consulta.get(), i));
        if (nombre == ClaveDeclaracion)
            fila.declaracion = sqlite3_column_int64(consulta.get(), i);
        else if (nombre == ClaveParticipe)
            fila.clave = sqlite3_column_int64(consulta.get(), i);
        else if (EsDelOrden(nombre))
            fila.orden[nombre] =
                QByteArray(static_cast<const char*>(sqlite3_column_blob(consulta.get(), i)),
                           sqlite3_column_bytes(consulta.get(), i));
        else
            fila.valores[nombre] = Columna(consulta, i);
    }
    return fila;
}

bool EnBlanco(const QString& valor) {
    return valor.trimmed().isEmpty() || valor == QStringLiteral("0");
}

/// Without the blanks that fill a field of fixed width; the marks of the sections keep their
/// places.
QString Legible(const QString& columna, QString valor) {
    if (columna == QStringLiteral("APARTADOS")) return valor.replace(u' ', u'-');
    while (valor.endsWith(u' ')) valor.chop(1);
    return valor;
}

QString Nombre(const QString& tabla, int posicion, const QString& columna) {
    const QString fila = tabla == TablaParticipes ? QString::number(posicion) + u' ' : QString();
    return tabla + u' ' + fila + columna;
}

}  // namespace

std::vector<FilaGuardada> FilasGuardadas(const QString& fichero) {
    const Base base = AbrirBase(fichero);
    std::vector<FilaGuardada> filas;
    for (const QString& tabla : Tablas(base)) {
        const auto consulta =
            Preparar(base, QStringLiteral("SELECT * FROM \"%1\" ORDER BY rowid").arg(tabla));
        while (sqlite3_step(consulta.get()) == SQLITE_ROW)
            filas.push_back(LeerUna(consulta, tabla));
    }
    return filas;
}

std::vector<FilaGuardada> De(const std::vector<FilaGuardada>& filas, qint64 declaracion) {
    std::vector<FilaGuardada> suyas;
    std::copy_if(filas.begin(), filas.end(), std::back_inserter(suyas),
                 [=](const auto& fila) { return fila.declaracion == declaracion; });
    return suyas;
}

std::vector<FilaGuardada> SinLasDe(const std::vector<FilaGuardada>& filas, qint64 declaracion) {
    std::vector<FilaGuardada> otras;
    std::copy_if(filas.begin(), filas.end(), std::back_inserter(otras),
                 [=](const auto& fila) { return fila.declaracion != declaracion; });
    return otras;
}

QList<qint64> Declaraciones(const std::vector<FilaGuardada>& filas) {
    QList<qint64> claves;
    for (const auto& fila : filas)
        if (fila.tabla == TablaGeneral) claves << fila.declaracion;
    return claves;
}

QMap<QString, QString> Contenido(const std::vector<FilaGuardada>& filas) {
    QMap<QString, QString> contenido;
    int participe = 0;
    for (const auto& fila : filas) {
        if (fila.tabla == TablaParticipes) ++participe;
        for (const QString& columna : fila.valores.keys())
            if (!EnBlanco(fila.valores[columna]))
                contenido[Nombre(fila.tabla, participe, columna)] =
                    Legible(columna, fila.valores[columna]);
    }
    return contenido;
}

QMap<QString, QString> Contenido(const std::vector<FilaDelGuion>& filas, bool euskera) {
    QMap<QString, QString> contenido;
    for (const auto& fila : filas) {
        const QString tabla = fila.tabla.section(u' ', 0, 0);
        const int participe = fila.tabla.section(u' ', 1).toInt();
        for (const QString& columna : fila.valores.keys())
            contenido[Nombre(tabla, participe, columna)] = EnIdioma(fila.valores[columna], euskera);
    }
    return contenido;
}

QMap<QString, QString> Cambios(const std::vector<FilaGuardada>& antes,
                               const std::vector<FilaGuardada>& despues) {
    const auto viejo = Contenido(antes);
    const auto nuevo = Contenido(despues);
    QMap<QString, QString> cambios;
    for (const QString& nombre : nuevo.keys())
        if (viejo.value(nombre) != nuevo[nombre]) cambios[nombre] = nuevo[nombre];
    for (const QString& nombre : viejo.keys())
        if (!nuevo.contains(nombre)) cambios[nombre] = QStringLiteral("-");
    return cambios;
}

}  // namespace padral::pruebas
