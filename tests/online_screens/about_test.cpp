// The about box.

#include "online/frm_about.h"
#include "online_screens/dialogs_fixture.h"

namespace padral::pruebas {
namespace {

using AcercaDe = ConDialogo;

TEST_F(AcercaDe, DescribesTheProgramInTheLanguageOfTheRun) {
    estado.VersionPrograma = QStringLiteral("1.30.1");
    const struct {
        const char* idioma;
        const char16_t *ventana, *titulo, *version, *boton, *descripcion;
    } filas[] = {
        {"C", u"Acerca de...", u"Declaración Padral.", u"Versión 1.30.1", u"&Aceptar",
         u"La aplicación Declaración Padral permite confeccionar, desde un ordenador personal, "
         u"declaraciones padrales, Modelo 417, que han de presentar a efectos fiscales los "
         u"empresarios, los profesionales y otros obligados tributarios, en la Diputación Foral de "
         u"Kelmaria."},
        {"E", u"Honi buruz...", u"Padral Aitorpena.", u"1.30.1 bertsioa", u"&Ados",
         u"Padral Aitorpenaren Laguntza Programari esker, ordenadore pertsonal bat erabiliz 417 "
         u"ereduko padral aitorpenak egin daitezke, hain zuzen enpresariek, profesionalek eta "
         u"aitorpena aurkeztera behartutako beste batzuek zerga ondorioetarako Kelmariako Foru "
         u"Aldundiari aurkeztu behar dizkiotenak."}};
    for (const auto& f : filas) {
        estado.mdi.IDI(QString::fromLatin1(f.idioma));
        mostrar<frmAbout>(estado);
        EXPECT_EQ(dialogo->windowTitle(), QString::fromUtf16(f.ventana));
        EXPECT_EQ(rotulo("lblTitle"), QString::fromUtf16(f.titulo));
        EXPECT_EQ(rotulo("lblVersion"), QString::fromUtf16(f.version));
        EXPECT_EQ(rotulo("lblDescription"), QString::fromUtf16(f.descripcion));
        EXPECT_EQ(rotulo("cmdOK"), QString::fromUtf16(f.boton));
        EXPECT_FALSE(rotulo("lblcopy").isEmpty());
    }
}

TEST_F(AcercaDe, OkAndItsKeysClose) {
    mostrar<frmAbout>(estado);
    pulsar("cmdOK");
    EXPECT_TRUE(cerrado());
    for (const Qt::Key k : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape}) {
        mostrar<frmAbout>(estado);
        EXPECT_EQ(enFoco(), QStringLiteral("cmdOK"));
        tecla(k);
        EXPECT_TRUE(cerrado()) << k;
    }
}

}  // namespace
}  // namespace padral::pruebas
