// Which files pass as declarations files.

#include "store/file_check.h"

#include <SQLiteCpp/Database.h>

#include "platform/failure.h"
#include "store/schema.h"
#include "store/store_files.h"

namespace padral::test {
namespace {

using namespace padral::store;

const GoOn Always = [](LongStep, int) { return true; };

struct FileCheck : StoreFiles {
    // The Spanish words with which the file is refused; "" when it passes.
    static QString Refusal(const QString& path) {
        try {
            CheckDeclarationsFile(path, QStringLiteral("X"), Always);
        } catch (const Fallo& failure) {
            return failure.Castellano();
        }
        return {};
    }
    void SetLayout(int version) const {
        Execute(mod, ("PRAGMA user_version = " + std::to_string(version)).c_str());
    }
};

TEST_F(FileCheck, SoundFileTellsLayoutAndDeclarations) {
    for (int i = 0; i < 4; ++i) Server().GuardarDeclaracion(DistinctDeclaration(0, i));
    const FileSummary summary = CheckDeclarationsFile(mod, mod, Always);
    EXPECT_EQ(summary.layout, SchemaVersion);
    EXPECT_EQ(summary.declarations, 4);
    EXPECT_EQ(CountDeclarations(mod), 4);
}

TEST_F(FileCheck, OlderLayoutPassesThatCanBeCarriedOver) {
    SetLayout(OldestSchemaVersion);
    EXPECT_EQ(CheckHead(mod), OldestSchemaVersion);
    EXPECT_EQ(CheckDeclarationsFile(mod, mod, Always).layout, OldestSchemaVersion);
    EXPECT_EQ(CountDeclarations(mod), 0);
    SetLayout(OldestSchemaVersion - 1);
    EXPECT_EQ(Refusal(mod), QStringLiteral("El archivo «X» está dañado."));
}

// What could not be carried over after a restore would lock the user out: it is refused before.
TEST_F(FileCheck, AnOlderLayoutHasToLeadToThisOne) {
    const char* cases[] = {"DROP TABLE TAnexoII", "DELETE FROM TGENERAL", "DROP TABLE TGENERAL",
                           "ALTER TABLE TParticipes DROP COLUMN NOMBRE"};
    SetLayout(OldestSchemaVersion);
    const QByteArray sound = Bytes(mod);
    EXPECT_EQ(Refusal(mod), QString());
    EXPECT_EQ(Bytes(mod), sound);
    for (const char* sql : cases) {
        Overwrite(mod, sound);
        Execute(mod, sql);
        const QByteArray before = Bytes(mod);
        EXPECT_EQ(Refusal(mod), QStringLiteral("El archivo «X» está dañado.")) << sql;
        EXPECT_EQ(Bytes(mod), before) << sql;
    }
}

struct ChangedFile {
    const char* sql;
    const char* refusal;
};

TEST_F(FileCheck, RefusesANewerLayout) {
    SetLayout(SchemaVersion + 1);
    const QByteArray before = Bytes(mod);
    EXPECT_EQ(Refusal(mod),
              QStringLiteral("El archivo «X» es de una versión más nueva del programa."));
    EXPECT_EQ(Bytes(mod), before);
}

TEST_F(FileCheck, RefusesByWhatTheFileSays) {
    const ChangedFile cases[] = {
        {"PRAGMA application_id = 7", "El archivo «X» no es un archivo de datos de este programa."},
        {"ALTER TABLE TDeclaraciones RENAME TO Otra", "El archivo «X» está dañado."},
        {"ALTER TABLE TParticipes DROP COLUMN NOMBRE", "El archivo «X» está dañado."},
        {"DROP TABLE TGENERAL", "El archivo «X» está dañado."},
        {"DROP TABLE TParticipesAux", "El archivo «X» está dañado."},
        {"DROP TABLE TAnexoII", "El archivo «X» está dañado."},
        {"DELETE FROM TGENERAL", "El archivo «X» está dañado."},
        {"DROP INDEX IParticipes", "El archivo «X» está dañado."},
    };
    const QByteArray sound = Bytes(mod);
    for (const ChangedFile& one : cases) {
        Overwrite(mod, sound);
        Execute(mod, one.sql);
        const QByteArray before = Bytes(mod);
        EXPECT_EQ(Refusal(mod), QString::fromUtf8(one.refusal)) << one.sql;
        EXPECT_EQ(Bytes(mod), before) << one.sql;
    }
}

TEST_F(FileCheck, RefusesWhatIsNoFileOfTheProgram) {
    EXPECT_EQ(Refusal(Path("no.mdb")), QStringLiteral("No se encuentra el archivo «X»."));
    EXPECT_EQ(Refusal(Path("")), QStringLiteral("No se puede abrir el archivo «X»."));
    EXPECT_EQ(Refusal(lec),
              QStringLiteral("El archivo «X» no es un archivo de datos de este programa."));
    Overwrite(Path("texto.mdb"), "Una carta.");
    EXPECT_EQ(Refusal(Path("texto.mdb")),
              QStringLiteral("El archivo «X» no es un archivo de datos de este programa."));
}

TEST_F(FileCheck, RefusesDamage) {
    const QByteArray sound = Bytes(mod);
    for (const qint64 size : {qint64{0}, qint64{10}, qint64{16}, qint64{99}, qint64{4096}}) {
        Overwrite(mod, sound.left(size));
        EXPECT_EQ(Refusal(mod), QStringLiteral("El archivo «X» está dañado.")) << size;
    }
    QByteArray broken = sound;
    broken.replace(2 * 4096, 4096, QByteArray(4096, '\x5a'));
    Overwrite(mod, broken);
    EXPECT_EQ(Refusal(mod), QStringLiteral("El archivo «X» está dañado."));
    EXPECT_EQ(Bytes(mod), broken);
}

TEST_F(FileCheck, WhatCannotBeReadHasNoNumber) {
    EXPECT_EQ(CountDeclarations(Path("no.mdb")), std::nullopt);
    Overwrite(mod, Bytes(mod).left(4096));
    EXPECT_EQ(CountDeclarations(mod), std::nullopt);
}

TEST_F(FileCheck, CanBeGivenUp) {
    Execute(mod,
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20000)"
            " INSERT INTO TAnexoII (csde) SELECT i FROM n");
    int asked = 0;
    const auto give = [&](LongStep step, int) {
        EXPECT_EQ(step, LongStep::Checking);
        return ++asked < 2;
    };
    EXPECT_THROW(CheckDeclarationsFile(mod, mod, give), GivenUp);
    EXPECT_EQ(asked, 2);
}

}  // namespace
}  // namespace padral::test
