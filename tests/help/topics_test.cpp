// Each form has its page.

#include <QSet>

#include "core/help/help_topics.h"
#include "support/recorders.h"

namespace padral::pruebas {
namespace {

struct Fila {
    const char16_t* formulario;
    const char16_t* castellano;
    const char16_t* euskera;
};
constexpr Fila Filas[] = {
    {u"MDIPadral", u"indice.htm", u"aurkibidea.htm"},
    {u"FrmDatGen", u"datos_generales.htm", u"datu_orokorrak.htm"},
    {u"FrmDecLista", u"lista.htm", u"zerrenda.htm"},
    {u"FrmImOf", u"impresion.htm", u"inprimatzea.htm"},
    {u"FrmApartado2", u"apartado2.htm", u"2_atala.htm"},
    {u"FrmApartado3", u"apartado3.htm", u"3_atala.htm"},
    {u"FrmApartado3_2015", u"apartado3.htm", u"3_atala.htm"},
    {u"frmApartado4", u"apartado4.htm", u"4_atala.htm"},
    {u"frmApartado4_2015", u"apartado4.htm", u"4_atala.htm"},
    {u"frmApartado5", u"apartado5.htm", u"5_atala.htm"},
    {u"frmApartado5_2015", u"apartado5.htm", u"5_atala.htm"},
    {u"frmApartado6", u"apartado6.htm", u"6_atala.htm"},
    {u"FrmApartado7", u"apartado7.htm", u"7_atala.htm"},
    {u"frmListaParticipes", u"participes.htm", u"partaideak.htm"},
    {u"frmDatosParticipe", u"participe.htm", u"partaidea.htm"},
    {u"frmAnexoII", u"anexo2.htm", u"2_eranskina.htm"},
    {u"FrmIdioma", u"idioma.htm", u"hizkuntza.htm"},
    {u"frmPreferencias", u"preferencias.htm", u"hobespenak.htm"},
    {u"FrmVersionCheck", u"version.htm", u"bertsioa.htm"},
    {u"FrmSinConexion", u"version.htm", u"bertsioa.htm"},
    {u"frmAbout", u"acerca.htm", u"honi_buruz.htm"},
};

class Temas : public ::testing::Test {
protected:
    GrabadorAvisos avisos;
    RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
};

TEST_F(Temas, EachFormHasItsPageInBothLanguages) {
    for (const auto& fila : Filas) {
        const QString formulario = QString::fromUtf16(fila.formulario);
        EXPECT_TRUE(TieneTema(formulario)) << formulario.toStdString();
        estado.DesplazamientoIdioma = 0;
        EXPECT_EQ(TemaDe(estado, formulario), QString::fromUtf16(fila.castellano));
        estado.DesplazamientoIdioma = CatalogoTextos::DesplazamientoEuskera;
        EXPECT_EQ(TemaDe(estado, formulario), QString::fromUtf16(fila.euskera));
    }
}

TEST_F(Temas, NoFormStandsTwiceAndNoneIsLeftOut) {
    QSet<QString> formularios;
    for (const auto& tema : TemasAyuda()) formularios << QString::fromUtf16(tema.formulario);
    EXPECT_EQ(formularios.size(), static_cast<qsizetype>(TemasAyuda().size()));
    EXPECT_EQ(formularios.size(), static_cast<qsizetype>(std::size(Filas)));
}

TEST_F(Temas, AFormWithoutAPageLeadsToTheStart) {
    EXPECT_FALSE(TieneTema(QStringLiteral("MsgBox")));
    EXPECT_EQ(TemaDe(estado, QStringLiteral("MsgBox")), QStringLiteral("indice.htm"));
    EXPECT_EQ(TemaInicial(estado), QStringLiteral("indice.htm"));
    estado.DesplazamientoIdioma = CatalogoTextos::DesplazamientoEuskera;
    EXPECT_EQ(TemaInicial(estado), QStringLiteral("aurkibidea.htm"));
}

}  // namespace
}  // namespace padral::pruebas
