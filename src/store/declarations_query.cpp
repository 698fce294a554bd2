// The declarations list. It is read straight from the engine: 100 000 rows pass through here at
// once, and an object a cell would be most of the time.

#include <sqlite3.h>

#include <memory>

#include "store/collation.h"
#include "store/database.h"
#include "store/declarations_server.h"
#include "store/list_query.h"

namespace padral::SvrDPadral {

using namespace padral::store;

namespace {

struct Cierre {
    void operator()(sqlite3_stmt* consulta) const { sqlite3_finalize(consulta); }
};
using Consulta = std::unique_ptr<sqlite3_stmt, Cierre>;

constexpr std::size_t CriterioFecha = 4;

Consulta preparar(SQLite::Database& db, const std::string& sql) {
    sqlite3_stmt* consulta = nullptr;
    db.check(sqlite3_prepare_v2(db.getHandle(), sql.data(), static_cast<int>(sql.size()), &consulta,
                                nullptr));
    return Consulta(consulta);
}

void ligarCriterios(SQLite::Database& db, sqlite3_stmt* consulta, const CriteriosLista& criterios) {
    for (std::size_t i = 1; i < criterios.size(); ++i) {
        if (criterios[i].isEmpty()) continue;
        const int parametro = static_cast<int>(i);
        if (i == CriterioFecha) {
            db.check(sqlite3_bind_int(consulta, parametro, criterios[i].toInt()));
            continue;
        }
        const QByteArray texto = Folded(criterios[i]).toUtf8();
        db.check(sqlite3_bind_text(consulta, parametro, texto.constData(),
                                   static_cast<int>(texto.size()), SQLITE_TRANSIENT));
    }
}

std::string_view textoDe(sqlite3_stmt* consulta, int columna) {
    const auto* texto = reinterpret_cast<const char*>(sqlite3_column_text(consulta, columna));
    if (!texto) return {};
    return {texto, static_cast<std::size_t>(sqlite3_column_bytes(consulta, columna))};
}

void anadirFila(sqlite3_stmt* consulta, ListaDeclaraciones& lista) {
    using L = ListaDeclaraciones;
    lista.Anadir(sqlite3_column_int(consulta, L::Csde),
                 sqlite3_column_int(consulta, L::FechaDeclaracion),
                 {textoDe(consulta, L::Dni), textoDe(consulta, L::Nombre),
                  textoDe(consulta, L::Referencia), textoDe(consulta, L::Causa1),
                  textoDe(consulta, L::Apartados), textoDe(consulta, L::Causa2)});
}

}  // namespace

QString cDeclaracionesSvr::DameDeclaraciones(const CriteriosLista& criterios,
                                             ListaDeclaraciones& resultado, const QString& orden,
                                             const QString& tipoOrden) const {
    resultado.Vaciar();
    WithDatabase({mdbname, FileKind::Declarations, Access::Read, busyTimeout},
                 [&](SQLite::Database& db) {
                     const Consulta consulta = preparar(db, ListSql(criterios, orden, tipoOrden));
                     ligarCriterios(db, consulta.get(), criterios);
                     int estado = SQLITE_OK;
                     while ((estado = sqlite3_step(consulta.get())) == SQLITE_ROW)
                         anadirFila(consulta.get(), resultado);
                     if (estado != SQLITE_DONE) throw SQLite::Exception(db.getHandle(), estado);
                 });
    return QString::number(resultado.Filas());
}

}  // namespace padral::SvrDPadral
