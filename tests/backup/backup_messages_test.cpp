// The same in Basque: 10000 is the language offset of the run.

#include "backup_fixture.h"

namespace padral::pruebas {
namespace {

constexpr int Euskera = 10000;
constexpr auto TituloCopiaEu = "Sortu segurtasun kopia";
constexpr auto TituloRestauracionEu = "Leheneratu segurtasun kopia";

using EnEuskera = ConCopiaHecha;

TEST_F(EnEuskera, Backup) {
    dialogos.Elegido = copias;
    esperaPregunta(
        "«{}/backups» karpetan badago segurtasun kopia bat:\n"
        "2026/01/01 18:30, 2 aitorpen.\n\nOrdeztu nahi duzu?",
        TituloCopiaEu, Respuesta::Si);
    esperaAviso(
        "Segurtasun kopia sortu da.\n\nFitxategia: {}/backups/DPadralMod_bak.mdb\n"
        "Data: 2026/01/31 10:15\nAitorpenak: 3",
        TituloCopiaEu);
    copia(Euskera).CrearBackup();
    EXPECT_EQ(dialogos.Elecciones.at(0).titulo,
              QStringLiteral("Aukeratu segurtasun kopiarako karpeta"));
    EXPECT_EQ(dialogos.Textos.value(0), QStringLiteral("Aitorpenak kopiatzen..."));
    EXPECT_EQ(dialogos.Rotulos.titulo, QStringLiteral("Sortu segurtasun kopia"));
    EXPECT_EQ(dialogos.Rotulos.cancelar, QStringLiteral("&Utzi"));
}

TEST_F(EnEuskera, Restore) {
    ponerDeclaraciones(mod, 1);
    esperaPregunta(
        "Kopiako aitorpenek programan orain dauden guztiak ordeztuko dituzte.\n\n"
        "Orain: 2025/12/20 09:05, aitorpen 1\n"
        "Kopia: 2026/01/01 18:30, 2 aitorpen\n\n"
        "Oraingo fitxategia bere karpetan gordeko da, gaurko data izenean duela.\n\n"
        "Kopia leheneratu nahi duzu?",
        TituloRestauracionEu, Respuesta::Si);
    esperaAviso(
        "Kopiako aitorpenak leheneratu dira.\n\nData: 2026/01/31 10:15\nAitorpenak: 2\n\n"
        "Aurreko fitxategia izen honekin gorde da:\n"
        "{}/Tablas/DPadralMod_20260131_101530.mdb",
        TituloRestauracionEu);
    EXPECT_TRUE(restauracion(Euskera).CrearRestore());
    EXPECT_EQ(dialogos.Elecciones.at(0).titulo,
              QStringLiteral("Aukeratu leheneratu nahi duzun segurtasun kopia"));
    EXPECT_EQ(dialogos.Elecciones.at(0).filtro, QStringLiteral("mdb fitxategiak (*.mdb)"));
}

TEST_F(EnEuskera, MissingAndDamagedFile) {
    test::Overwrite(mod, "damaged");
    fechar(mod, QDateTime(QDate(2026, 1, 30), QTime(23, 59)));
    esperaPregunta(
        "Kopiako aitorpenek programan orain dauden guztiak ordeztuko dituzte.\n\n"
        "Orain: 2026/01/30 23:59, ezin da irakurri\n"
        "Kopia: 2026/01/01 18:30, 2 aitorpen\n\n"
        "Oraingo fitxategia bere karpetan gordeko da, gaurko data izenean duela.\n\n"
        "Kopia leheneratu nahi duzu?",
        TituloRestauracionEu, Respuesta::No);
    EXPECT_FALSE(restauracion(Euskera).CrearRestore());
    ASSERT_TRUE(QFile::remove(mod));
    esperaPregunta(
        "Kopiako aitorpenek programan orain dauden guztiak ordeztuko dituzte.\n\n"
        "Orain: ez dago aitorpenen fitxategirik\n"
        "Kopia: 2026/01/01 18:30, 2 aitorpen\n\nKopia leheneratu nahi duzu?",
        TituloRestauracionEu, Respuesta::No);
    EXPECT_FALSE(restauracion(Euskera).CrearRestore());
}

TEST_F(EnEuskera, Reasons) {
    const struct {
        const char* elegido;
        const char* motivo;
    } casos[] = {
        {"{}/none.mdb", "Ez da «{}/none.mdb» fitxategia aurkitzen."},
        {"{}/Tablas/DPadralLec.mdb",
         "«{}/Tablas/DPadralLec.mdb» fitxategia ez da programa honen datu-fitxategi bat."},
        {"{}/Tablas/DPadralMod.mdb",
         "«{}/Tablas/DPadralMod.mdb» programak darabilen fitxategia bera da, ez haren kopia bat."},
    };
    for (const auto& caso : casos) {
        dialogos.Elegido = conRutas(caso.elegido);
        const QByteArray mensaje = QByteArray("Ezin izan da kopia leheneratu.\n\n") + caso.motivo +
                                   "\n\nEz da ezer aldatu.";
        esperaAviso(mensaje.constData(), TituloRestauracionEu, Icono::Exclamacion);
        EXPECT_FALSE(restauracion(Euskera).CrearRestore()) << caso.elegido;
    }
    dialogos.Elegido = conRutas("{}/usb");
    esperaAviso(
        "Ezin izan da segurtasun kopia sortu.\n\nEz da «{}/usb» karpeta aurkitzen.\n\n"
        "Ez da ezer aldatu.",
        TituloCopiaEu, Icono::Exclamacion);
    copia(Euskera).CrearBackup();
    dialogos.Elegido = QStringLiteral("/proc");
    esperaAviso(
        "Ezin izan da segurtasun kopia sortu.\n\nEzin da «/proc» karpetan idatzi.\n\n"
        "Ez da ezer aldatu.",
        TituloCopiaEu, Icono::Exclamacion);
    copia(Euskera).CrearBackup();
}

TEST(FiltroDeCopia, PatternsOfTheWindowsForm) {
    const struct {
        const char* filtro;
        int idioma;
        const char* esperado;
    } casos[] = {
        {"archivos mdb (*.mdb;*.mdb)|*.mdb;mdb", 0, "archivos mdb (*.mdb)"},
        {"archivos mdb (*.mdb;*.mdb)|*.mdb;mdb", 10000, "mdb fitxategiak (*.mdb)"},
        {"archivos mdb (*.mdb;*.mdb)|*.mdb;mdb", 1000, "mdb fitxategiak (*.mdb)"},
        {"Datos (*.mdb;*.bak)|*.mdb;*.bak", 0, "Datos (*.mdb *.bak)"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(FiltroQt(QString::fromUtf8(caso.filtro), caso.idioma),
                  QString::fromUtf8(caso.esperado));
}

}  // namespace
}  // namespace padral::pruebas
