// Files that cannot be used: told in plain words with their name, and left as they are.

#include "platform/failure.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Transaction.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <functional>

#include "platform/another_user.h"
#include "store/general_server.h"
#include "store/participants_server.h"
#include "store/store_files.h"
#include "store/transfer_server.h"

namespace padral::test {
namespace {

struct Case {
    const char* name;
    void (*spoil)(const QString& path);
    const char16_t* spanish;
    const char16_t* basque;
};

void remove(const QString& path) { QFile::remove(path); }
void empty(const QString& path) { Overwrite(path, {}); }
void garbage(const QString& path) { Overwrite(path, QByteArray(9000, 'x')); }
void oneLine(const QString& path) { Overwrite(path, "notes"); }
void otherFormat(const QString& path) {
    Overwrite(path, QByteArray("\0\1\0\0Other Database\0", 19) + QByteArray(4096, '\0'));
}
void garbageBehindTheHeader(const QString& path) {
    Overwrite(path, Bytes(path).first(16) + QByteArray(9000, 'x'));
}
void cutInTheFirstBytes(const QString& path) { Overwrite(path, Bytes(path).first(9)); }
void otherDatabase(const QString& path) {
    remove(path);
    Execute(path, "CREATE TABLE t (a); INSERT INTO t VALUES (1)");
}
void newer(const QString& path) { Execute(path, "PRAGMA user_version = 9999"); }
void unknownLayout(const QString& path) { Execute(path, "PRAGMA user_version = 0"); }
void half(const QString& path) {
    const QByteArray whole = Bytes(path);
    Overwrite(path, whole.first(whole.size() / 2));
}
void headerOnly(const QString& path) { Overwrite(path, Bytes(path).first(100)); }
void folder(const QString& path) {
    remove(path);
    QDir().mkdir(path);
}

constexpr const char16_t* DamagedSpanish = u"El archivo «%1» está dañado.";
constexpr const char16_t* DamagedBasque = u"«%1» fitxategia hondatuta dago.";

constexpr const char16_t* ForeignSpanish =
    u"El archivo «%1» no es un archivo de datos de este programa.";
constexpr const char16_t* ForeignBasque =
    u"«%1» fitxategia ez da programa honen datu-fitxategi bat.";

const std::vector<Case> Cases{
    {"missing", remove, u"No se encuentra el archivo «%1».", u"Ez da «%1» fitxategia aurkitzen."},
    {"empty", empty, DamagedSpanish, DamagedBasque},
    {"garbage", garbage, ForeignSpanish, ForeignBasque},
    {"one_line", oneLine, ForeignSpanish, ForeignBasque},
    {"other_format", otherFormat, ForeignSpanish, ForeignBasque},
    {"garbage_behind_the_header", garbageBehindTheHeader, DamagedSpanish, DamagedBasque},
    {"cut_in_the_first_bytes", cutInTheFirstBytes, DamagedSpanish, DamagedBasque},
    {"half", half, DamagedSpanish, DamagedBasque},
    {"header_only", headerOnly, DamagedSpanish, DamagedBasque},
    {"unknown_layout", unknownLayout, DamagedSpanish, DamagedBasque},
    {"other_database", otherDatabase, ForeignSpanish, ForeignBasque},
    {"newer", newer, u"El archivo «%1» es de una versión más nueva del programa.",
     u"«%1» fitxategia programaren bertsio berriago batekoa da."},
    {"folder", folder, u"No se puede abrir el archivo «%1».", u"Ezin da «%1» fitxategia ireki."}};

struct Operation {
    const char* name;
    bool catalogue;
    std::function<void(const QString& path)> run;
};

SvrDPadral::cDeclaracionesSvr declarations(const QString& path) {
    SvrDPadral::cDeclaracionesSvr server;
    server.mdbname = path;
    server.busyTimeout = 30;
    return server;
}

SvrDPadral::cGeneral general(const QString& path) {
    SvrDPadral::cGeneral server;
    server.mdbnameread = path;
    server.mdbnamewrite = path;
    server.busyTimeout = 30;
    return server;
}

const std::vector<Operation> Operations{
    {"load", false,
     [](const QString& path) {
         qint32 key = 1;
         SvrDPadral::FilasDeclaracion rows;
         declarations(path).CargarDeclaracion(key, rows);
     }},
    {"save", false, [](const QString& path) { declarations(path).GuardarDeclaracion({}); }},
    {"list", false,
     [](const QString& path) {
         SvrDPadral::ListaDeclaraciones list;
         declarations(path).DameDeclaraciones({}, list, QStringLiteral("1"), {});
     }},
    {"count", false, [](const QString& path) { general(path).NumeroDeclaraciones(); }},
    {"language", false, [](const QString& path) { general(path).DameIdioma(); }},
    {"set_language", false, [](const QString& path) { general(path).CambiarIdioma({}); }},
    {"auxiliary", false,
     [](const QString& path) {
         SvrVuelco::cDeclaSvr server;
         server.mdbname = path;
         server.busyTimeout = 30;
         server.InsertarParticipes(1, {});
     }},
    {"dates", true,
     [](const QString& path) {
         std::array<qint32, 3> dates{};
         general(path).DameFechaMinimaMaxima(dates);
     }},
    {"query", true, [](const QString& path) {
         Tabla rows;
         general(path).CargarResultado(QStringLiteral("Select * From TSiglas"), rows);
     }}};

void expectFailure(const std::function<void()>& run, const QString& path, const char16_t* spanish,
                   const char16_t* basque) {
    try {
        run();
        ADD_FAILURE() << "no failure";
    } catch (const Fallo& failure) {
        EXPECT_EQ(failure.Castellano(), QStringView(spanish).toString().arg(path));
        EXPECT_EQ(failure.Euskera(), QStringView(basque).toString().arg(path));
    }
}

struct Unusable : StoreFiles {
    const QString& File(const Operation& operation) const {
        return operation.catalogue ? lec : mod;
    }
};

TEST_F(Unusable, FilesAreToldByEveryOperationAndLeftAsTheyAre) {
    for (const Case& spoiled : Cases)
        for (const Operation& operation : Operations) {
            SCOPED_TRACE(std::string(spoiled.name) + " " + operation.name);
            const QString path =
                Path(("spoiled_" + std::string(spoiled.name) + operation.name).c_str());
            QFile::copy(File(operation), path);
            spoiled.spoil(path);
            const QByteArray before = Bytes(path);
            expectFailure([&] { operation.run(path); }, path, spoiled.spanish, spoiled.basque);
            EXPECT_EQ(Bytes(path), before);
            EXPECT_EQ(QFile::exists(path), std::string(spoiled.name) != "missing");
            EXPECT_FALSE(QFile::exists(path + QStringLiteral("-journal")));
        }
}

TEST_F(Unusable, FilesAreToldByTheTransfer) {
    for (const Case& spoiled : Cases) {
        if (spoiled.spoil == remove) continue;  // left to the first operation
        for (const bool catalogue : {false, true}) {
            SCOPED_TRACE(std::string(spoiled.name));
            QDir(QFileInfo(mod).path()).mkdir(QStringLiteral("data"));
            SvrDPadral::cTraspaso server;
            server.mdbPath = Path("data");
            server.mdbmod = Path("data/DPadralMod.mdb");
            const QString path = catalogue ? Path("data/DPadralLec.mdb") : server.mdbmod;
            QFile::copy(catalogue ? lec : mod, path);
            spoiled.spoil(path);
            expectFailure([&] { server.Traspaso(); }, path, spoiled.spanish, spoiled.basque);
            QDir(Path("data")).removeRecursively();
        }
    }
}

TEST_F(Unusable, TheOtherOfTheTwoFilesIsForeign) {
    for (const Operation& operation : Operations) {
        const QString& wrong = operation.catalogue ? mod : lec;
        const QByteArray before = Bytes(wrong);
        expectFailure([&] { operation.run(wrong); }, wrong, ForeignSpanish, ForeignBasque);
        EXPECT_EQ(Bytes(wrong), before);
    }
}

TEST_F(Unusable, FilesLockedTooLongAreTold) {
    for (const Operation& operation : Operations) {
        const QString& path = File(operation);
        SQLite::Database other(path.toStdString(), SQLITE_OPEN_READWRITE);
        const SQLite::Transaction held(other, SQLite::TransactionBehavior::EXCLUSIVE);
        const QByteArray before = Bytes(path);
        SCOPED_TRACE(operation.name);
        expectFailure([&] { operation.run(path); }, path,
                      u"El archivo «%1» está bloqueado por otro programa.",
                      u"Beste programa batek blokeatuta dauka «%1» fitxategia.");
        EXPECT_EQ(Bytes(path), before);
    }
}

TEST_F(Unusable, ALookAtALockedFileDoesNotLoosenTheLock) {
    SQLite::Database other(mod.toStdString(), SQLITE_OPEN_READWRITE);
    const SQLite::Transaction held(other, SQLite::TransactionBehavior::EXCLUSIVE);
    for (int attempt = 0; attempt < 2; ++attempt)
        EXPECT_THROW(declarations(mod).GuardarDeclaracion({}), Fallo);
}

TEST_F(Unusable, ReadOnlyFilesAreReadAndNotWritten) {
    Server().GuardarDeclaracion(DistinctDeclaration(0, 5));
    const QByteArray before = Bytes(mod);
    chmod(QFileInfo(mod).path().toLocal8Bit().constData(), 0755);
    chmod(mod.toLocal8Bit().constData(), 0444);
    {
        const AnotherUser somebody;
        EXPECT_EQ(general(mod).NumeroDeclaraciones(), 1);
        expectFailure([&] { declarations(mod).GuardarDeclaracion({}); }, mod,
                      u"No se puede escribir en el archivo «%1»: es de solo lectura.",
                      u"Ezin da «%1» fitxategian idatzi: irakurtzeko soilik da.");
    }
    EXPECT_EQ(Bytes(mod), before);
}

TEST_F(Unusable, FilesInAReadOnlyFolderAreReadAndNotWritten) {
    const QByteArray before = Bytes(mod);
    const QByteArray folder = QFileInfo(mod).path().toLocal8Bit();
    chmod(mod.toLocal8Bit().constData(), 0666);
    chmod(folder.constData(), 0555);
    {
        const AnotherUser somebody;
        EXPECT_EQ(general(mod).NumeroDeclaraciones(), 0);
        expectFailure([&] { declarations(mod).GuardarDeclaracion({}); }, mod,
                      u"No se puede escribir en el archivo «%1»: es de solo lectura.",
                      u"Ezin da «%1» fitxategian idatzi: irakurtzeko soilik da.");
    }
    chmod(folder.constData(), 0755);
    EXPECT_EQ(Bytes(mod), before);
}

TEST_F(Unusable, DamageFoundWhileReadingIsTold) {
    const qint32 saved = Server().GuardarDeclaracion(DistinctDeclaration(0, 5));
    const int page =
        Value(mod, "SELECT rootpage FROM sqlite_master WHERE name = 'TApartado5'").toInt();
    QByteArray content = Bytes(mod);
    content.replace((page - 1) * 4096, 4096, QByteArray(4096, '\xA5'));
    Overwrite(mod, content);
    expectFailure(
        [&] {
            qint32 key = saved;
            SvrDPadral::FilasDeclaracion rows;
            Server().CargarDeclaracion(key, rows);
        },
        mod, DamagedSpanish, DamagedBasque);
    EXPECT_EQ(Bytes(mod), content);
}

TEST_F(Unusable, AListThatIsDamagedInTheMiddleIsTold) {
    for (int i = 0; i < 200; ++i) Server().GuardarDeclaracion(DistinctDeclaration(0, i));
    const int page =
        Value(mod, "SELECT rootpage FROM sqlite_master WHERE name = 'IListaNombre'").toInt();
    QByteArray content = Bytes(mod);
    // The root page of an index of this size only leads to others; one of those is spoiled.
    const auto* root = reinterpret_cast<const uchar*>(content.constData()) + (page - 1) * 4096;
    ASSERT_EQ(root[0], 2);
    const int child = root[8] << 24 | root[9] << 16 | root[10] << 8 | root[11];
    content.replace((child - 1) * 4096, 4096, QByteArray(4096, '\xA5'));
    Overwrite(mod, content);
    expectFailure(
        [&] {
            SvrDPadral::ListaDeclaraciones list;
            Server().DameDeclaraciones({}, list, QStringLiteral("2"), QStringLiteral("ASC"));
        },
        mod, DamagedSpanish, DamagedBasque);
}

TEST_F(Unusable, AnyOtherErrorOfTheEngineIsToldWithItsNumber) {
    Execute(mod, "DROP TABLE TApartado7");
    expectFailure([&] { declarations(mod).GuardarDeclaracion({}); }, mod,
                  u"El motor de datos ha fallado en el archivo «%1» (código 1).",
                  u"Datu-motorrak huts egin du «%1» fitxategian (1 kodea).");
}

TEST_F(Unusable, AJournalBesideAFileThatIsNotOursIsNotPlayedBack) {
    Execute(mod, "PRAGMA user_version = 9999");
    Overwrite(mod + QStringLiteral("-journal"), "some journal");
    const QByteArray before = Bytes(mod);
    EXPECT_THROW(declarations(mod).GuardarDeclaracion({}), Fallo);
    EXPECT_EQ(Bytes(mod), before);
    EXPECT_EQ(Bytes(mod + QStringLiteral("-journal")), "some journal");
}

}  // namespace
}  // namespace padral::test
