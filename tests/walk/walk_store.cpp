#include "walk/walk_store.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <memory>

namespace padral::pruebas {

namespace {

constexpr int ProvinciaSinNombre = 20;
/// Places among the section flags, from 0.
constexpr int MarcaApartado5 = 3, MarcaAnexoI = 6;

/// Record -> table.
const QMap<QString, QString>& tablas() {
    static const QMap<QString, QString> todas = {
        {QStringLiteral("G."), QStringLiteral("TDeclaraciones")},
        {QStringLiteral("2."), QStringLiteral("TApartado2")},
        {QStringLiteral("3."), QStringLiteral("TApartado3")},
        {QStringLiteral("4."), QStringLiteral("TApartado4")},
        {QStringLiteral("5."), QStringLiteral("TApartado5")},
        {QStringLiteral("6."), QStringLiteral("TApartado6")},
        {QStringLiteral("7."), QStringLiteral("TApartado7")},
        {QStringLiteral("A."), QStringLiteral("TAnexoII")}};
    return todas;
}

QString valor(sqlite3_stmt* orden, int columna) {
    if (sqlite3_column_type(orden, columna) == SQLITE_FLOAT)
        return QString::number(sqlite3_column_double(orden, columna), 'f', 2);
    const auto* texto = reinterpret_cast<const char*>(sqlite3_column_text(orden, columna));
    return texto ? QString::fromUtf8(texto) : QStringLiteral("NULL");
}

TablaLeida leerTabla(sqlite3* db, const QString& tabla) {
    const QString clave =
        tabla == QStringLiteral("TParticipes") ? QStringLiteral("cspa") : QStringLiteral("csde");
    sqlite3_stmt* cruda = nullptr;
    const QByteArray sql = "SELECT * FROM " + tabla.toUtf8();
    EXPECT_EQ(sqlite3_prepare_v2(db, sql.constData(), -1, &cruda, nullptr), SQLITE_OK);
    const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> orden(cruda, sqlite3_finalize);
    TablaLeida filas;
    while (orden && sqlite3_step(orden.get()) == SQLITE_ROW) {
        FilaLeida fila;
        for (int i = 0; i < sqlite3_column_count(orden.get()); ++i)
            fila[QString::fromUtf8(sqlite3_column_name(orden.get(), i))] = valor(orden.get(), i);
        filas[fila.value(clave).toLongLong()] = fila;
    }
    return filas;
}

void quitarNombre(FilaLeida& fila, const QString& postal, const QString& municipio) {
    if (fila.value(postal).toInt() / 1000 == ProvinciaSinNombre) fila[municipio] = QString();
}

void quitar(FilaLeida& fila, std::initializer_list<const char16_t*> columnas) {
    for (const auto* columna : columnas) fila.remove(QString::fromUtf16(columna));
}

/// What is looked up anew at each load.
void quitarDeducidos(const QString& apartado, FilaLeida& fila) {
    if (apartado == QStringLiteral("A.")) quitar(fila, {u"NombreProvincia"});
    if (apartado != QStringLiteral("2.")) return;
    for (const auto* sufijo : {u"Fis", u"Soc", u"Act", u"Not"}) {
        const QString s = QString::fromUtf16(sufijo);
        for (const auto* deducida : {u"DescripcionSiglas", u"CodigoProvincia", u"NombreProvincia"})
            fila.remove(QString::fromUtf16(deducida) + s);
        quitarNombre(fila, QStringLiteral("CodigoPostal") + s,
                     QStringLiteral("NombreMunicipio") + s);
    }
}

FilaLeida generales(FilaLeida fila, const QString& marcas) {
    quitar(fila, {u"FECHAVIGOR", u"Apartado2", u"Apartado3", u"Apartado4", u"Apartado5",
                  u"Apartado6", u"Apartado7", u"AnexoI", u"AnexoII"});
    fila[QStringLiteral("APARTADOS")] = SinRelleno(marcas);
    return fila;
}

QString igualar(const FilaLeida& esperada, const FilaLeida& leida) {
    QStringList faltas;
    for (auto i = esperada.begin(); i != esperada.end(); ++i) {
        const QString guardado = SinRelleno(leida.value(i.key(), QStringLiteral("no column")));
        if (guardado != i.value())
            faltas
                << QStringLiteral("%1: \"%2\" instead of \"%3\"").arg(i.key(), guardado, i.value());
    }
    return faltas.join(QStringLiteral(", "));
}

}  // namespace

Almacen LeerAlmacen(const QString& fichero) {
    sqlite3* db = nullptr;
    EXPECT_EQ(sqlite3_open_v2(fichero.toUtf8().constData(), &db, SQLITE_OPEN_READONLY, nullptr),
              SQLITE_OK);
    Almacen almacen;
    for (const auto& tabla : tablas()) almacen[tabla] = leerTabla(db, tabla);
    almacen[QStringLiteral("TParticipes")] = leerTabla(db, QStringLiteral("TParticipes"));
    sqlite3_close(db);
    return almacen;
}

QMap<QString, FilaLeida> FilasDe(const Almacen& almacen, qint64 csde) {
    QMap<QString, FilaLeida> filas;
    for (const auto& tabla : tablas()) filas[tabla] = almacen.value(tabla).value(csde);
    return filas;
}

TablaLeida ParticipesDe(const Almacen& almacen, qint64 csde) {
    TablaLeida suyos = almacen.value(QStringLiteral("TParticipes"));
    for (auto i = suyos.begin(); i != suyos.end();)
        i = i->value(QStringLiteral("csde")).toLongLong() == csde ? std::next(i) : suyos.erase(i);
    return suyos;
}

QString MarcasEsperadas(const cDeclaraciones& d) {
    QString marcas;
    for (const auto& apartado : Apartados()) marcas += EstaLleno(d, apartado) ? u'X' : u' ';
    return marcas.insert(MarcaAnexoI, d.NumParti != 0 ? u'X' : u' ');
}

QMap<QString, FilaLeida> FilasEsperadas(const Retrato& retrato, const QString& marcas) {
    QMap<QString, FilaLeida> filas;
    for (auto i = tablas().begin(); i != tablas().end(); ++i) {
        FilaLeida fila = Parte(retrato, i.key());
        if (i.key() == QStringLiteral("G.")) fila = generales(fila, marcas);
        quitarDeducidos(i.key(), fila);
        if (i.key() == QStringLiteral("5.") && marcas[MarcaApartado5] == u'X')
            for (auto& respuesta : fila)
                if (respuesta == QStringLiteral("N")) respuesta.clear();
        filas[i.value()] = fila;
    }
    return filas;
}

QList<FilaLeida> ParticipesEsperados(const Retrato& retrato) {
    QMap<QString, FilaLeida> todos;
    const Retrato partes = Parte(retrato, QStringLiteral("P."));
    for (auto i = partes.begin(); i != partes.end(); ++i) {
        const qsizetype punto = i.key().lastIndexOf(u'.');
        todos[i.key().left(punto)][i.key().mid(punto + 1)] = i.value();
    }
    QList<FilaLeida> vivos;
    for (auto i = todos.begin(); i != todos.end(); ++i) {
        if (i.key().endsWith(u'E')) continue;
        FilaLeida fila = i.value();
        quitar(fila, {u"cspa", u"DESCRIPCIONVIA", u"CodigoProvincia", u"NombreProvincia"});
        quitarNombre(fila, QStringLiteral("CodPostal"), QStringLiteral("NombMun"));
        vivos << fila;
    }
    return vivos;
}

QStringList Diferencias(const QMap<QString, FilaLeida>& esperadas,
                        const QMap<QString, FilaLeida>& leidas) {
    QStringList faltas;
    for (auto i = esperadas.begin(); i != esperadas.end(); ++i)
        if (const QString falta = igualar(i.value(), leidas.value(i.key())); !falta.isEmpty())
            faltas << i.key() + QStringLiteral(": ") + falta;
    return faltas;
}

QStringList Diferencias(QList<FilaLeida> esperados, const TablaLeida& leidos) {
    QStringList faltas;
    if (esperados.size() != leidos.size())
        faltas << QStringLiteral("%1 participants instead of %2")
                      .arg(leidos.size())
                      .arg(esperados.size());
    const QString dni = QStringLiteral("DNI");
    for (const auto& leido : leidos) {
        const auto este = std::find_if(esperados.begin(), esperados.end(), [&](const FilaLeida& e) {
            return igualar(e, leido).isEmpty();
        });
        if (este == esperados.end())
            faltas << QStringLiteral("participant ") + SinRelleno(leido.value(dni)) +
                          QStringLiteral(" differs");
        else
            esperados.erase(este);
    }
    return faltas;
}

}  // namespace padral::pruebas
