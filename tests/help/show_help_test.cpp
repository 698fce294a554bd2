// The address of a topic, and what happens without the help.

#include <QCoreApplication>

#include "help_fixture.h"

namespace padral::pruebas {
namespace {

class Mostrar : public ConAyuda {
protected:
    QString nativa(const QString& nombre) const { return QDir::toNativeSeparators(ruta(nombre)); }

    GrabadorVisor visor;
};

TEST_F(Mostrar, TheAddressFollowsTheLanguage) {
    const QChar s = QDir::separator();
    const QString carpetaAyuda = QStringLiteral("C") + s + QStringLiteral("Ayuda") + s;
    EXPECT_EQ(DireccionAyuda(estado, QStringLiteral("C"), QStringLiteral("indice.htm")),
              carpetaAyuda + QStringLiteral("Ayuda.chm::/indice.htm"));
    enEuskera();
    EXPECT_EQ(DireccionAyuda(estado, QStringLiteral("C"), QStringLiteral("aurkibidea.htm")),
              carpetaAyuda + QStringLiteral("Laguntza.chm::/aurkibidea.htm"));
}

TEST_F(Mostrar, AnAddressNamesFileAndTopic) {
    const QString direccion = QStringLiteral("/p::/Ayuda/Laguntza.chm::/zerrenda.htm");
    EXPECT_EQ(FicheroAyuda(direccion), QStringLiteral("/p::/Ayuda/Laguntza.chm"));
    EXPECT_EQ(TemaAyuda(direccion), QStringLiteral("zerrenda.htm"));
}

TEST_F(Mostrar, TheViewerGetsAddressAndForm) {
    MostrarAyuda(estado, visor, QStringLiteral("indice.htm"), &formulario);
    enEuskera();
    MostrarAyuda(estado, visor, QStringLiteral("aurkibidea.htm"), &formulario);
    EXPECT_EQ(visor.Direcciones,
              QStringList(
                  {nativa(QStringLiteral("Ayuda.chm")) + QStringLiteral("::/indice.htm"),
                   nativa(QStringLiteral("Laguntza.chm")) + QStringLiteral("::/aurkibidea.htm")}));
    EXPECT_EQ(visor.Formulario, &formulario);
}

TEST_F(Mostrar, AMissingFileIsSaidAndNothingOpens) {
    QFile::remove(ruta(QStringLiteral("Ayuda.chm")));
    QFile::remove(ruta(QStringLiteral("Laguntza.chm")));
    avisos.Espera(QStringLiteral("No se encuentra el fichero de ayuda «%1».")
                      .arg(nativa(QStringLiteral("Ayuda.chm"))),
                  QStringLiteral("Ayuda"));
    MostrarAyuda(estado, visor, QStringLiteral("indice.htm"), &formulario);
    enEuskera();
    avisos.Espera(QStringLiteral("Ez da «%1» laguntza-fitxategia aurkitu.")
                      .arg(nativa(QStringLiteral("Laguntza.chm"))),
                  QStringLiteral("Laguntza"));
    MostrarAyuda(estado, visor, QStringLiteral("aurkibidea.htm"), &formulario);
    EXPECT_TRUE(visor.Direcciones.isEmpty());
}

TEST_F(Mostrar, AFolderWithTheNameOfTheFileIsNoHelpFile) {
    QFile::remove(ruta(QStringLiteral("Ayuda.chm")));
    QDir().mkpath(ruta(QStringLiteral("Ayuda.chm")));
    avisos.Espera(QStringLiteral("No se encuentra el fichero de ayuda «%1».")
                      .arg(nativa(QStringLiteral("Ayuda.chm"))),
                  QStringLiteral("Ayuda"));
    MostrarAyuda(estado, visor, QStringLiteral("indice.htm"), &formulario);
    EXPECT_TRUE(visor.Direcciones.isEmpty());
}

// The folder of an installed program cannot be written; its data, not its help, lie elsewhere.
TEST_F(Mostrar, WithoutAHelpOfItsOwnThatBesideTheProgramIsMeant) {
    const QTemporaryDir otra;
    estado.CarpetaPrograma = otra.path();
    const QString esperada = QDir::toNativeSeparators(QCoreApplication::applicationDirPath() +
                                                      QStringLiteral("/Ayuda/Ayuda.chm"));
    avisos.Espera(QStringLiteral("No se encuentra el fichero de ayuda «%1».").arg(esperada),
                  QStringLiteral("Ayuda"));
    MostrarAyuda(estado, visor, QStringLiteral("indice.htm"), &formulario);
}

TEST_F(Mostrar, AMissingFolderOfPagesIsSaidAndNoWindowOpens) {
    VisorVentana ventana(estado);
    QDir(ruta(QStringLiteral("Ayuda"))).removeRecursively();
    QDir(ruta(QStringLiteral("Laguntza"))).removeRecursively();
    avisos.Espera(QStringLiteral("No se encuentra la carpeta de ayuda «%1».")
                      .arg(nativa(QStringLiteral("Ayuda"))),
                  QStringLiteral("Ayuda"));
    MostrarAyuda(estado, ventana, QStringLiteral("indice.htm"), &formulario);
    enEuskera();
    avisos.Espera(QStringLiteral("Ez da «%1» laguntza-karpeta aurkitu.")
                      .arg(nativa(QStringLiteral("Laguntza"))),
                  QStringLiteral("Laguntza"));
    MostrarAyuda(estado, ventana, QStringLiteral("aurkibidea.htm"), &formulario);
    EXPECT_TRUE(formulario.findChildren<QWidget*>().isEmpty());
}

}  // namespace
}  // namespace padral::pruebas
