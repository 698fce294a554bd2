#include "store/general_server.h"

#include <sqlite3.h>

#include "store/database.h"

namespace padral::SvrDPadral {

using namespace padral::store;

namespace {

QVariant valorDe(const SQLite::Column& columna) {
    if (columna.isInteger()) return columna.getInt();
    if (columna.isFloat()) return columna.getDouble();
    return QString::fromUtf8(columna.getText(), columna.getBytes());
}

// Text of one column of the one row of general values.
template <class Leer>
auto leerAjuste(const Opening& apertura, const char* sql, Leer leer) {
    return WithDatabase(apertura, [&](SQLite::Database& db) {
        SQLite::Statement consulta(db, sql);
        if (!consulta.executeStep()) throw FileFailure(FileFault::Damaged, apertura.path);
        return leer(consulta);
    });
}

QString primerTexto(SQLite::Statement& consulta) {
    return valorDe(consulta.getColumn(0)).toString();
}

template <class Valor>
void guardarAjuste(const QString& ruta, int espera, const char* sql, const Valor& valor) {
    WithWriting(ruta, espera, [&](SQLite::Database& db) {
        SQLite::Statement orden(db, sql);
        orden.bind(1, valor);
        orden.exec();
    });
}

enum class Clave { Tal_cual, Con_letra };

void leerTabla(const Opening& apertura, const QString& sql, Clave clave, Tabla& resultado) {
    WithDatabase(apertura, [&](SQLite::Database& db) {
        SQLite::Statement consulta(db, sql.toStdString());
        resultado = Tabla(consulta.getColumnCount());
        while (consulta.executeStep()) {
            Fila fila;
            for (int c = 0; c < consulta.getColumnCount(); ++c)
                fila.append(valorDe(consulta.getColumn(c)));
            if (clave == Clave::Con_letra && !consulta.getColumn(0).isText())
                fila[0] = QString(u'C' + QString::number(fila[0].toInt()));
            resultado.Anadir(fila);
        }
    });
}

void leerLista(const Opening& apertura, const QString& sql, QStringList& resultado) {
    WithDatabase(apertura, [&](SQLite::Database& db) {
        SQLite::Statement consulta(db, sql.toStdString());
        resultado.clear();
        while (consulta.executeStep()) resultado.append(primerTexto(consulta));
    });
}

void leerUno(const Opening& apertura, const QString& sql, QString& resultado) {
    resultado = WithDatabase(apertura, [&](SQLite::Database& db) {
        SQLite::Statement consulta(db, sql.toStdString());
        return consulta.executeStep() ? primerTexto(consulta) : QStringLiteral("");
    });
}

Opening lectura(const cGeneral& servidor, FileKind tipo) {
    return {servidor.mdbnameread, tipo, Access::Read, servidor.busyTimeout};
}

Opening catalogo(const cGeneral& servidor) { return lectura(servidor, FileKind::Catalogue); }
Opening ajustes(const cGeneral& servidor) { return lectura(servidor, FileKind::Declarations); }

}  // namespace

qint32 cGeneral::NumeroDeclaraciones() const {
    return WithDatabase({mdbnamewrite, FileKind::Declarations, Access::Read, busyTimeout},
                        [](SQLite::Database& db) {
                            return db.execAndGet("SELECT count(*) FROM TDeclaraciones").getInt();
                        });
}

void cGeneral::DameFechaMinimaMaxima(std::array<qint32, 3>& fechas) const {
    fechas = leerAjuste(catalogo(*this), "SELECT FECMIN, FECMAX, FECDECMIN FROM TGENERAL",
                        [](SQLite::Statement& consulta) {
                            return std::array<qint32, 3>{consulta.getColumn(0).getInt(),
                                                         consulta.getColumn(1).getInt(),
                                                         consulta.getColumn(2).getInt()};
                        });
}

QString cGeneral::DameIdioma() const {
    return leerAjuste(ajustes(*this), "SELECT IDI FROM TGENERAL", primerTexto);
}

void cGeneral::CambiarIdioma(const QString& idioma) const {
    guardarAjuste(mdbnameread, busyTimeout, "UPDATE TGENERAL SET IDI = ?", idioma.toStdString());
}

QString cGeneral::URLAct() const {
    return leerAjuste(catalogo(*this), "SELECT URLAct FROM TGENERAL", primerTexto);
}

qint16 cGeneral::ObtenerActOnline() const {
    return leerAjuste(ajustes(*this), "SELECT ActOnline FROM TGENERAL",
                      [](SQLite::Statement& consulta) {
                          return static_cast<qint16>(consulta.getColumn(0).getInt());
                      });
}

void cGeneral::GuardarActOnline(qint16 valor) const {
    guardarAjuste(mdbnameread, busyTimeout, "UPDATE TGENERAL SET ActOnline = ?", int{valor});
}

QString cGeneral::BackupTvc() const {
    return leerAjuste(catalogo(*this), "SELECT BACKUP_TVC FROM TGENERAL", primerTexto);
}

void cGeneral::CargarResultado(const QString& sql, Tabla& resultado) const {
    leerTabla(catalogo(*this), sql, Clave::Con_letra, resultado);
}

void cGeneral::CargarMunicipio(const QString& sql, Tabla& resultado) const {
    leerTabla(catalogo(*this), sql, Clave::Tal_cual, resultado);
}

void cGeneral::ObtenerFormaJuridica(const QString& sql, Tabla& resultado) const {
    leerTabla(catalogo(*this), sql, Clave::Tal_cual, resultado);
}

void cGeneral::ObtenerEpigrafe(const QString& sql, QStringList& resultado) const {
    leerLista(catalogo(*this), sql, resultado);
}

void cGeneral::ObtenerMotivoCambio(const QString& sql, QStringList& resultado) const {
    leerLista(catalogo(*this), sql, resultado);
}

void cGeneral::ObtenerDescriCese(const QString& sql, QStringList& resultado) const {
    leerLista(catalogo(*this), sql, resultado);
}

void cGeneral::ObtenerCausaCese(const QString& sql, QString& resultado) const {
    leerUno(catalogo(*this), sql, resultado);
}

void cGeneral::ObtenerCodigoEpigrafe(const QString& sql, QString& resultado) const {
    leerUno(catalogo(*this), sql, resultado);
}

void cGeneral::ObtenerDescripcionEpigrafe(const QString& sql, QString& resultado) const {
    leerUno(catalogo(*this), sql, resultado);
}

void cGeneral::ObtenerCodigoFormaJuridica(const QString& sql, QString& resultado) const {
    leerUno(catalogo(*this), sql, resultado);
}

void cGeneral::ObtenerNombreProvincia(const QString& sql, QString& resultado) const {
    leerUno(catalogo(*this), sql, resultado);
}

void cGeneral::ObtenerDescripcionSiglas(const QString& sql, QString& resultado) const {
    leerUno(catalogo(*this), sql, resultado);
}

void cGeneral::ObtenerDescActivEcon(const QString& sql, QString& resultado) const {
    leerUno(catalogo(*this), sql, resultado);
}

void cGeneral::ObtenerDescFormaJuridica(const QString& sql, QString& resultado) const {
    leerUno(catalogo(*this), sql, resultado);
}

void cGeneral::ObtenerCodigoCausa(const QString& sql, QString& resultado) const {
    leerUno(catalogo(*this), sql, resultado);
}

}  // namespace padral::SvrDPadral
