#include "store/participants_server.h"

#include <algorithm>

#include "store/collation.h"
#include "store/database.h"
#include "store/record_io.h"
#include "store/schema.h"

namespace padral::SvrVuelco {

using namespace padral::store;

namespace {

enum class Comparacion { DesdeTexto, Comienzo, DesdeNumero };

struct ColumnaLista {
    qsizetype elemento;  // of the participant's row
    Comparacion comparacion;
};

// By column of the participants list, from 1.
constexpr std::array<ColumnaLista, 6> Columnas{{{},
                                                {2, Comparacion::DesdeTexto},
                                                {3, Comparacion::Comienzo},
                                                {5, Comparacion::Comienzo},
                                                {14, Comparacion::Comienzo},
                                                {15, Comparacion::DesdeNumero}}};

float numero(const QString& texto) { return texto.trimmed().replace(u',', u'.').toFloat(); }

bool cumple(const ColumnaLista& columna, const QVariant& valor, const QString& criterio) {
    const QString texto = Folded(valor.toString());
    switch (columna.comparacion) {
        case Comparacion::DesdeTexto:
            return texto >= Folded(criterio);
        case Comparacion::Comienzo:
            return texto.startsWith(Folded(criterio));
        case Comparacion::DesdeNumero:
            break;
    }
    return valor.toFloat() >= numero(criterio);
}

bool cumpleTodos(const Fila& fila, const CriteriosParticipes& criterios) {
    for (std::size_t c = 1; c < Columnas.size(); ++c)
        if (!criterios[c].isEmpty() &&
            !cumple(Columnas[c], fila[Columnas[c].elemento], criterios[c]))
            return false;
    return true;
}

int comparar(const ColumnaLista& columna, const Fila& a, const Fila& b) {
    const QVariant &x = a[columna.elemento], &y = b[columna.elemento];
    if (columna.comparacion == Comparacion::DesdeNumero)
        return x.toFloat() < y.toFloat() ? -1 : x.toFloat() > y.toFloat();
    if (columna.comparacion == Comparacion::DesdeTexto)
        return Folded(x.toString()).compare(Folded(y.toString()));
    return CompareSpanish(x.toString().toStdString(), y.toString().toStdString());
}

std::vector<Fila> leerAuxiliar(SQLite::Database& db, qint32 csde) {
    const auto columnas = Participants().columns;
    SQLite::Statement consulta(db, "SELECT " + ColumnList(columnas) + " FROM " +
                                       std::string(AuxiliaryParticipants) +
                                       " WHERE declaracion = ? ORDER BY posicion");
    consulta.bind(1, csde);
    std::vector<Fila> filas;
    while (consulta.executeStep()) filas.push_back(ReadRow(consulta, columnas));
    return filas;
}

// Rows that are equal in the column, and all without a column, keep the order in which they were
// inserted.
void ordenar(std::vector<Fila>& filas, int columna, bool descendente) {
    if (columna < 1 || columna >= static_cast<int>(Columnas.size())) return;
    const ColumnaLista& por = Columnas[static_cast<std::size_t>(columna)];
    std::stable_sort(filas.begin(), filas.end(), [&](const Fila& a, const Fila& b) {
        return descendente ? comparar(por, a, b) > 0 : comparar(por, a, b) < 0;
    });
}

}  // namespace

void cDeclaSvr::InsertarParticipes(qint32 csde, const Tabla& datos) const {
    WithWriting(mdbname, busyTimeout, [&](SQLite::Database& db) {
        const auto columnas = Participants().columns;
        SQLite::Statement borrado(
            db, "DELETE FROM " + std::string(AuxiliaryParticipants) + " WHERE declaracion = ?");
        borrado.bind(1, csde);
        borrado.exec();
        SQLite::Statement orden(
            db, InsertSql(AuxiliaryParticipants, "declaracion, posicion", columnas));
        for (int fila = 0; fila < datos.Filas(); ++fila) {
            orden.bind(1, csde);
            orden.bind(2, fila);
            BindRow(orden, 3, columnas, datos.FilaEntera(fila));
            orden.exec();
            orden.reset();
        }
    });
}

QString cDeclaSvr::DameParticipesAux(qint32 csde, const CriteriosParticipes& criterios,
                                     Tabla& resultado, const QString& orden,
                                     const QString& tipoOrden) const {
    std::vector<Fila> filas =
        WithDatabase({mdbname, FileKind::Declarations, Access::Read, busyTimeout},
                     [&](SQLite::Database& db) { return leerAuxiliar(db, csde); });
    std::erase_if(filas, [&](const Fila& fila) { return !cumpleTodos(fila, criterios); });
    ordenar(filas, orden.toInt(), tipoOrden.compare(u"DESC", Qt::CaseInsensitive) == 0);
    resultado = Tabla(static_cast<int>(Participants().columns.size()));
    for (const Fila& fila : filas) resultado.Anadir(fila);
    return QString::number(resultado.Filas());
}

}  // namespace padral::SvrVuelco
