// Every control of section 4 by its name, in both editions and languages.

#include <set>

#include "tax/section4_fixture.h"

namespace padral::pruebas {
namespace {

struct Control {
    const char16_t* nombre;
    int caption;
    int ayuda = 0;  ///< 0: no tool tip
};
constexpr Control Controles[] = {
    {u"Label13", 19},         {u"Label14", 17},          {u"Label17", 17},
    {u"Label16", 18},         {u"lblCajaRenuncia", 18},  {u"Label15", 16},
    {u"Label18", 16},         {u"lblCajaExclusion", 16}, {u"lblCajaOpcion", 19},
    {u"Label19", 798},        {u"Label4", 28},           {u"Label1", 31},
    {u"lblTitSoc", 840},      {u"Label3", 29},           {u"lblCaja", 869},
    {u"Label5", 27},          {u"Label6", 26},           {u"Label7", 25},
    {u"lblExpIntra", 781},    {u"Label9", 23},           {u"Label10", 22},
    {u"Label11", 21},         {u"Label12", 20},          {u"cmdInicio", 670, 671},
    {u"cmdCancelar", 14, 15}, {u"cmdAnterior", 10, 11},  {u"cmdSiguiente", 12, 13},
};
constexpr Control SoloHasta2014[] = {{u"Label2", 30}, {u"Label8", 24}};

class Controles4 : public PantallaApartado4, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        PantallaApartado4::SetUp();
        if (GetParam()) enEuskera();
    }
    void espera(const Control& control) {
        SCOPED_TRACE(s(control.nombre));
        ASSERT_TRUE(hay(control.nombre));
        EXPECT_EQ(rotulo(control.nombre), estado.Texto(control.caption));
        EXPECT_EQ(c(control.nombre)->toolTip(),
                  control.ayuda ? estado.Texto(control.ayuda) : QString());
    }
};

TEST_P(Controles4, ConSuTextoYSuAyuda) {
    for (const auto edicion : Ediciones4) {
        g.FECHAVIGOR = 20131231;
        abrir(edicion);
        for (const auto& control : Controles) espera(control);
        EXPECT_EQ(pantalla->windowTitle(), estado.Texto(1));
        EXPECT_EQ(rotulo(u"lblTituloPantalla"), estado.Texto(1));
        for (const auto* nombre : {u"PicInicio", u"PicCan", u"PicAnterior", u"PicSiguiente"})
            EXPECT_TRUE(hay(nombre)) << s(nombre);
    }
    espera({u"lblCuoAdu", 879});
    abrirAntigua();
    for (const auto& control : SoloHasta2014) espera(control);
}

TEST_P(Controles4, LosPuntosLlenanElSitio) {
    abrir();
    const QString completo = estado.Texto(837), visible = rotulo(u"lblSONF");
    EXPECT_TRUE(completo.startsWith(visible));
    EXPECT_GT(visible.count(u'.'), 20);
    auto* etiqueta = c<QLabel>(u"lblSONF");
    EXPECT_LE(etiqueta->fontMetrics().size(0, visible).width(), etiqueta->width());
    etiqueta->setFixedWidth(4000);
    QCoreApplication::processEvents();
    EXPECT_EQ(rotulo(u"lblSONF"), completo);
}

TEST_P(Controles4, TodosDicenQueSonAQuienNoVe) {
    for (const auto edicion : Ediciones4) {
        r.LIMPIARDATOS();
        socio();
        g.FECHAVIGOR = 20131231;
        abrir(edicion);
        QStringList nombres;
        for (auto* w : pantalla->findChildren<QWidget*>()) {
            if ((w->focusPolicy() & Qt::TabFocus) == 0) continue;
            EXPECT_FALSE(w->accessibleName().trimmed().isEmpty()) << w->objectName().toStdString();
            EXPECT_FALSE(nombres.contains(w->accessibleName()))
                << w->accessibleName().toStdString();
            nombres << w->accessibleName();
        }
    }
}

TEST_P(Controles4, LaCasillaDiceSuPreguntaYSuColumna) {
    const bool euskera = GetParam();
    abrirAntigua();
    EXPECT_EQ(c(u"ChkEO3")->accessibleName(),
              euskera ? q(u"PFEZaren Zenbatespen Objektiboa, Zeinu, Indize edo Modulu bidez: KANPO "
                          u"GERATZEA (59)")
                      : q(u"Estimación Objetiva por Signos, Índices o Módulos del I.R.P.F.: "
                          u"EXCLUSIÓN (59)"));
    EXPECT_EQ(c(u"ChkEXIntr2")->accessibleName(),
              euskera ? q(u"Batasun barruko operadoreen Erregistroan alta edo baja: BAJA (162)")
                      : q(u"Alta o Baja en el Registro de operadores intracomunitarios: BAJA "
                          u"(162)"));
    EXPECT_EQ(c(u"ChkSONF1")->accessibleName(),
              euskera ? q(u"Sozietateak 3/2004 FA II. tit.72-74: AUKERATZEA")
                      : q(u"Sociedades Tit 2 NF 3/200472-74: OPCIÓN"));
}
INSTANTIATE_TEST_SUITE_P(Idiomas, Controles4, ::testing::Bool(),
                         [](const auto& i) { return i.param ? "Euskera" : "Castellano"; });

TEST_F(PantallaApartado4, CadaEtiquetaEsDeSuCampo) {
    for (const auto edicion : Ediciones4) {
        g.FECHAVIGOR = 20131231;
        abrir(edicion);
        for (const auto& fila : Filas4)
            if (fila.esta(edicion)) {
                EXPECT_EQ(c<QLabel>(fila.etiqueta)->buddy(), c(fila.casillas.front().nombre));
            }
        EXPECT_EQ(c<QLabel>(u"Label11")->buddy(), c(u"txtNIF"));
        EXPECT_EQ(c<QLabel>(u"Label12")->buddy(), c(u"txtNombre"));
    }
}

// The answers of a column stand below its heading, whatever the row.
TEST_F(PantallaApartado4, LasCasillasEstanBajoSuColumna) {
    const std::pair<const char16_t*, std::vector<const char16_t*>> columnas[] = {
        {u"Label13", {u"ChkEO1", u"ChkED1"}},  {u"Label14", {u"ChkEO2", u"ChkED2"}},
        {u"Label15", {u"ChkEO3", u"ChkED3"}},  {u"lblCajaOpcion", {u"ChkCaja1"}},
        {u"lblCajaRenuncia", {u"ChkCaja2"}},   {u"lblCajaExclusion", {u"ChkCaja3"}},
        {u"Label16", {u"ChkAG1", u"ChkSI1"}},  {u"Label17", {u"ChkAG2", u"ChkSI2"}},
        {u"Label18", {u"ChkAG3", u"ChkSI3"}},  {u"lblCajaOpcion", {u"ChkCuoAdu1"}},
        {u"lblCajaRenuncia", {u"ChkCuoAdu2"}}, {u"lblCajaExclusion", {u"ChkCuoAdu3"}},
    };
    std::set<const char16_t*> vistas;
    for (const auto edicion : Ediciones4) {
        g.FECHAVIGOR = 20131231;
        abrir(edicion);
        for (const auto& [cabecera, casillas] : columnas)
            for (const auto* casilla : casillas) {
                if (!hay(casilla)) continue;
                vistas.insert(casilla);
                EXPECT_EQ(c(casilla)->x(), c(cabecera)->x()) << s(casilla);
                EXPECT_GT(c(casilla)->y(), c(cabecera)->y()) << s(casilla);
            }
    }
    EXPECT_EQ(vistas.size(), 18U);
}

}  // namespace
}  // namespace padral::pruebas
