#include "store/transfer_server.h"

#include <QDir>
#include <QFileInfo>

#include "store/collation.h"
#include "store/database.h"
#include "store/list_query.h"
#include "store/migration.h"

namespace padral::SvrDPadral {

using namespace padral::store;

namespace {

bool clavesAlDia(SQLite::Database& db) {
    SQLite::Statement consulta(db, "SELECT VersionOrden FROM TGENERAL");
    return consulta.executeStep() &&
           CollationVersion() == QString::fromUtf8(consulta.getColumn(0).getText());
}

QString texto(SQLite::Statement& consulta, int columna) {
    const SQLite::Column valor = consulta.getColumn(columna);
    return QString::fromUtf8(valor.getText(), valor.getBytes());
}

void rehacerClaves(SQLite::Database& db) {
    // Not through an index: the update moves the row within it, and it would come again.
    SQLite::Statement filas(db,
                            "SELECT csde, DNI, NOMBRE, NumeroArchivo FROM TDeclaraciones"
                            " NOT INDEXED ORDER BY csde");
    SQLite::Statement cambio(
        db,
        "UPDATE TDeclaraciones SET DniMayusculas = ?2, NombreMayusculas = ?3,"
        " ReferenciaMayusculas = ?4, NombreClave = ?5, ReferenciaClave = ?6 WHERE csde = ?1");
    while (filas.executeStep()) {
        cambio.bind(1, filas.getColumn(0).getInt());
        BindListKeys(cambio, 2, texto(filas, 1), texto(filas, 2), texto(filas, 3));
        cambio.exec();
        cambio.reset();
    }
    SQLite::Statement version(db, "UPDATE TGENERAL SET VersionOrden = ?");
    version.bind(1, CollationVersion().toStdString());
    version.exec();
}

}  // namespace

bool cTraspaso::Traspaso() const {
    const QString lectura = QDir(mdbPath).filePath(QStringLiteral("DPadralLec.mdb"));
    if (QFileInfo::exists(lectura)) Open({lectura, FileKind::Catalogue, Access::Read, busyTimeout});
    if (!QFileInfo::exists(mdbmod)) return false;
    Migrate(mdbmod, busyTimeout);
    const bool alDia = WithDatabase({mdbmod, FileKind::Declarations, Access::Read, busyTimeout},
                                    [](SQLite::Database& db) { return clavesAlDia(db); });
    if (!alDia) WithWriting(mdbmod, busyTimeout, rehacerClaves);
    return false;
}

}  // namespace padral::SvrDPadral
