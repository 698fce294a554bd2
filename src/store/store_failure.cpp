#include "store/store_failure.h"

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <QDir>
#include <array>

namespace padral::store {

namespace {

struct FaultText {
    FileFault fault;
    QStringView spanish;
    QStringView basque;
};

constexpr std::array<FaultText, 10> FaultTexts{{
    {FileFault::Missing, u"No se encuentra el archivo «%1».", u"Ez da «%1» fitxategia aurkitzen."},
    {FileFault::Unopened, u"No se puede abrir el archivo «%1».", u"Ezin da «%1» fitxategia ireki."},
    {FileFault::Foreign, u"El archivo «%1» no es un archivo de datos de este programa.",
     u"«%1» fitxategia ez da programa honen datu-fitxategi bat."},
    {FileFault::Newer, u"El archivo «%1» es de una versión más nueva del programa.",
     u"«%1» fitxategia programaren bertsio berriago batekoa da."},
    {FileFault::Older,
     u"El archivo «%1» es de una versión anterior del programa. Se adaptará al iniciarlo de nuevo.",
     u"«%1» fitxategia programaren aurreko bertsio batekoa da. Berriro abiaraztean egokituko da."},
    {FileFault::Damaged, u"El archivo «%1» está dañado.", u"«%1» fitxategia hondatuta dago."},
    {FileFault::Locked, u"El archivo «%1» está bloqueado por otro programa.",
     u"Beste programa batek blokeatuta dauka «%1» fitxategia."},
    {FileFault::ReadOnly, u"No se puede escribir en el archivo «%1»: es de solo lectura.",
     u"Ezin da «%1» fitxategian idatzi: irakurtzeko soilik da."},
    {FileFault::Full, u"No queda sitio en el disco para el archivo «%1».",
     u"Ez dago lekurik diskoan «%1» fitxategiarentzat."},
    {FileFault::Device, u"El disco falla al leer o escribir el archivo «%1».",
     u"Diskoak huts egin du «%1» fitxategia irakurtzean edo idaztean."},
}};

struct CodeFault {
    int code;
    FileFault fault;
};

// A file that is open already and "cannot be opened" is its journal: the folder is not writable.
constexpr std::array<CodeFault, 10> CodeFaults{{
    {SQLITE_NOTADB, FileFault::Damaged},
    {SQLITE_CORRUPT, FileFault::Damaged},
    {SQLITE_BUSY, FileFault::Locked},
    {SQLITE_LOCKED, FileFault::Locked},
    {SQLITE_PROTOCOL, FileFault::Locked},
    {SQLITE_READONLY, FileFault::ReadOnly},
    {SQLITE_CANTOPEN, FileFault::ReadOnly},
    {SQLITE_PERM, FileFault::ReadOnly},
    {SQLITE_FULL, FileFault::Full},
    {SQLITE_IOERR, FileFault::Device},
}};

}  // namespace

Fallo FileFailure(FileFault fault, const QString& path) {
    const QString name = QDir::toNativeSeparators(path);
    for (const FaultText& text : FaultTexts)
        if (text.fault == fault)
            return {text.spanish.toString().arg(name), text.basque.toString().arg(name)};
    return {name, name};
}

Fallo FileFailure(const SQLite::Exception& error, const QString& path) {
    const int code = error.getErrorCode() & 0xff;
    for (const CodeFault& entry : CodeFaults)
        if (entry.code == code) return FileFailure(entry.fault, path);
    // The engine's own words are English and speak of its insides; its number can be looked up.
    const QString name = QDir::toNativeSeparators(path);
    const QString number = QString::number(error.getErrorCode());
    return {QStringLiteral("El motor de datos ha fallado en el archivo «%1» (código %2).")
                .arg(name, number),
            QStringLiteral("Datu-motorrak huts egin du «%1» fitxategian (%2 kodea).")
                .arg(name, number)};
}

}  // namespace padral::store
