#include "store/transfer_server.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "platform/failure.h"
#include "store/collation.h"
#include "store/older_files.h"

namespace padral::test {
namespace {

using SvrDPadral::ListaDeclaraciones;

struct Transfer : StoreFiles {
    bool Run() const {
        SvrDPadral::cTraspaso server;
        server.mdbmod = mod;
        server.mdbPath = QFileInfo(mod).path() + QDir::separator();
        return server.Traspaso();
    }
    QString Names(const char* column) const {
        ListaDeclaraciones list;
        Server().DameDeclaraciones({}, list, QString::fromUtf8(column), QStringLiteral("ASC"));
        QStringList names;
        for (int row = 0; row < list.Filas(); ++row)
            names.append(list.texto(ListaDeclaraciones::Nombre, row));
        return names.join(u' ');
    }
};

TEST_F(Transfer, LeavesAPresentFileAsItIs) {
    Server().GuardarDeclaracion(DistinctDeclaration(0, 4));
    const QByteArray before = Bytes(mod);
    EXPECT_FALSE(Run());
    EXPECT_EQ(Bytes(mod), before);
}

TEST_F(Transfer, LeavesAMissingFileToTheFirstOperation) {
    QFile::remove(mod);
    QFile::remove(lec);
    EXPECT_FALSE(Run());
    EXPECT_FALSE(QFile::exists(mod));
}

TEST_F(Transfer, RemakesTheSortKeysOfOtherRules) {
    for (const char16_t* name : {u"OÑA", u"ñu", u"nube"})
        Server().GuardarDeclaracion(
            Listed({}, QStringView(name).toString(), QStringView(name).toString(), 0));
    Execute(mod,
            "UPDATE TGENERAL SET VersionOrden = '1.2';"
            "UPDATE TDeclaraciones SET NombreClave = x'00', ReferenciaClave = x'00',"
            " NombreMayusculas = '', DniMayusculas = 'x', ReferenciaMayusculas = ''");
    EXPECT_EQ(Names("2"), QStringLiteral("OÑA ñu nube"));
    EXPECT_FALSE(Run());
    EXPECT_EQ(Names("2"), QStringLiteral("nube ñu OÑA"));
    EXPECT_EQ(Names("3"), QStringLiteral("nube ñu OÑA"));
    EXPECT_EQ(Value(mod, "SELECT VersionOrden FROM TGENERAL"), store::CollationVersion());
    EXPECT_EQ(Value(mod,
                    "SELECT count(*) FROM TDeclaraciones WHERE NombreMayusculas = upper(NOMBRE)"
                    " OR NombreMayusculas = 'ÑU'"),
              QStringLiteral("3"));
    EXPECT_EQ(Value(mod, "PRAGMA integrity_check"), QStringLiteral("ok"));
}

// The rows move within the indexes while their keys are made.
TEST_F(Transfer, MakesTheKeysOfEachRowOnce) {
    constexpr int Rows = 300;
    for (int i = 0; i < Rows; ++i) {
        const QString text = QString::number(1000 + i);
        Server().GuardarDeclaracion(Listed(text, text, text, 1));
    }
    Execute(mod,
            "UPDATE TGENERAL SET VersionOrden = '1.2';"
            "UPDATE TDeclaraciones SET NombreClave = x'00', ReferenciaClave = x'00',"
            " NombreMayusculas = '', DniMayusculas = '', ReferenciaMayusculas = '';"
            "CREATE TABLE Cambios (csde INTEGER);"
            "CREATE TRIGGER Contar AFTER UPDATE ON TDeclaraciones BEGIN"
            " INSERT INTO Cambios VALUES (new.csde); END");
    Run();
    EXPECT_EQ(Value(mod, "SELECT count(*) FROM Cambios"), QString::number(Rows));
    EXPECT_EQ(Value(mod, "SELECT count(DISTINCT csde) FROM Cambios"), QString::number(Rows));
    EXPECT_EQ(Value(mod, "SELECT count(*) FROM TDeclaraciones WHERE DniMayusculas <> DNI"),
              QStringLiteral("0"));
}

// The run goes on with the file as it is now.
TEST_F(Transfer, CarriesAnOlderFileToThePresentLayout) {
    WriteLayout(mod, 1);
    const auto before = Content(mod);
    EXPECT_FALSE(Run());
    EXPECT_EQ(Value(mod, "PRAGMA user_version"), QStringLiteral("2"));
    ExpectSurvived(Path("DPadralMod_v1.mdb"), before);
    EXPECT_EQ(Names("2"),
              QStringLiteral("nube blanca, s.l. ÑUÑEZ ETXEBERRIA, MAITE O'Hara & Oña 😀 "));
    const QByteArray carried = Bytes(mod);
    EXPECT_FALSE(Run());
    EXPECT_EQ(Bytes(mod), carried);
    EXPECT_EQ(FilesBeside(mod).size(), 3);
}

TEST_F(Transfer, RemakesTheSortKeysOfAnOlderFile) {
    WriteLayout(mod, 1);
    Execute(mod,
            "UPDATE TGENERAL SET VersionOrden = '1.2';"
            "UPDATE TDeclaraciones SET NombreClave = x'00', DniMayusculas = ''");
    EXPECT_FALSE(Run());
    EXPECT_EQ(Names("2"),
              QStringLiteral("nube blanca, s.l. ÑUÑEZ ETXEBERRIA, MAITE O'Hara & Oña 😀 "));
    EXPECT_EQ(Value(mod, "SELECT VersionOrden FROM TGENERAL"), store::CollationVersion());
}

TEST_F(Transfer, LeavesAnOlderFileThatCannotBeCarriedAsItIs) {
    WriteLayout(mod, 1);
    Execute(mod, "DROP TABLE TApartado7");
    const QByteArray before = Bytes(mod);
    EXPECT_THROW(Run(), Fallo);
    EXPECT_EQ(Bytes(mod), before);
    EXPECT_EQ(FilesBeside(mod).size(), 2);
}

}  // namespace
}  // namespace padral::test
