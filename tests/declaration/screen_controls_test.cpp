// Every control of the general data by its name, with caption and tool tip in both languages.

#include "declaration/screen_fixture.h"

namespace padral::pruebas {
namespace {

struct Control {
    const char16_t* nombre;
    int caption;    ///< 0: the control shows no text of its own
    int ayuda = 0;  ///< 0: no tool tip
};
constexpr Control Controles[] = {
    {u"lblDNI", 355},
    {u"lblNombre", 428},
    {u"lblNumeroArchivo", 447},
    {u"lblFechaDeclaracion", 446},
    {u"lblFechaModificacion", 431},
    {u"lblFechaConstitucion", 768},
    {u"lblFechaInscripcion", 769},
    {u"lblDNIRepresentante", 355},
    {u"lblNombreRepresentante", 428},
    {u"lblFirmaEnCalidadDe", 427},
    {u"lblElMismo", 429},
    {u"lblDNIAnterior", 394},
    {u"lblNombreAnterior", 356},
    {u"lblMotivoCambio", 395},
    {u"lblTexto1", 445},
    {u"lblTexto2", 444},
    {u"chkDeclaracionPrevia", 443},
    {u"chkDeclaracionInicio", 442},
    {u"chkDeclaracionModificacion", 441},
    {u"chkDeclaracionCese", 440},
    {u"chkPorComienzo", 396},
    {u"chkModificacionFormaJuridica", 403},
    {u"chkAnulacionPorCese", 402},
    {u"chkPorExtravio", 399},
    {u"chkPorDefinitivo", 398},
    {u"chkPorOtrasCausas", 397},
    {u"cmdApartado2", 422, 423},
    {u"cmdApartado3", 420, 421},
    {u"cmdApartado4", 418, 419},
    {u"cmdApartado5", 416, 417},
    {u"cmdApartado6", 414, 415},
    {u"cmdApartado7", 412, 413},
    {u"cmdAnexo", 410, 411},
    {u"cmdAnexoII", 751, 752},
    {u"cmdAceptar", 346, 426},
    {u"cmdCancelar", 14, 96},
    {u"cmdImprimir", 424, 425},
    {u"cmdAnterior", 408, 409},
    {u"chkApartado2", 0},
    {u"chkApartado3", 0},
    {u"chkApartado4", 0},
    {u"chkApartado5", 0},
    {u"chkApartado6", 0},
    {u"chkApartado7", 0},
    {u"chkApartado8", 0},
    {u"chkAnexoII", 0},
    {u"chkElMismo", 0},
};
constexpr const char16_t* SinTexto[] = {u"txtDNI",
                                        u"txtNombre",
                                        u"txtNumeroArchivo",
                                        u"mskFechaDeclaracion",
                                        u"mskFechaConst",
                                        u"mskFechaInscrip",
                                        u"mskFechaModificacion",
                                        u"txtDNIRepresentante",
                                        u"txtDNIAnterior",
                                        u"txtNombreAnterior",
                                        u"txtNombreRepresentante",
                                        u"txtFirmaEnCalidadDe",
                                        u"FraSolicitud",
                                        u"FraModificacion",
                                        u"cmbMotivoCambio",
                                        u"Pestaña",
                                        u"PicOKey",
                                        u"PicCan",
                                        u"PicImprimir",
                                        u"PicAnterior",
                                        u"lblTexto3",
                                        u"lblTexto4"};

class LosControles : public PantallaGeneral, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        PantallaGeneral::SetUp();
        if (GetParam()) enEuskera();
        abrirNueva();
    }
};

TEST_P(LosControles, ConSuTextoYSuAyuda) {
    for (const auto& control : Controles) {
        SCOPED_TRACE(s(control.nombre));
        auto* w = c(control.nombre);
        ASSERT_TRUE(w);
        const QString caption = control.caption ? estado.Texto(control.caption) : QString();
        EXPECT_EQ(w->property("text").toString(), caption);
        EXPECT_EQ(w->toolTip(), control.ayuda ? estado.Texto(control.ayuda) : QString());
    }
    for (const auto* nombre : SinTexto) EXPECT_TRUE(c(nombre));
    EXPECT_EQ(pantalla->objectName(), QStringLiteral("FrmDatGen"));
}

TEST_P(LosControles, DosPestanasConSuAyuda) {
    const auto* pestanas = c<QTabBar>(u"Pestaña");
    ASSERT_EQ(pestanas->count(), 2);
    EXPECT_EQ(pestanas->tabText(0), estado.Texto(404));
    EXPECT_EQ(pestanas->tabToolTip(0), estado.Texto(405));
    EXPECT_EQ(pestanas->tabText(1), estado.Texto(406));
    EXPECT_EQ(pestanas->tabToolTip(1), estado.Texto(407));
}

TEST_P(LosControles, MascaraDeFechaDelIdioma) {
    for (const auto* nombre :
         {u"mskFechaDeclaracion", u"mskFechaModificacion", u"mskFechaConst", u"mskFechaInscrip"}) {
        EXPECT_EQ(fecha(nombre),
                  GetParam() ? QStringLiteral("____/__/__") : QStringLiteral("__/__/____"));
        EXPECT_EQ(c(nombre)->accessibleDescription(), estado.Texto(651));
    }
}

TEST_P(LosControles, ElMarcoDeModificacionTieneSuTitulo) {
    const auto rotulos = c(u"FraModificacion")->findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(rotulos.begin(), rotulos.end(),
                            [this](const QLabel* l) { return l->text() == estado.Texto(393); }));
}
INSTANTIATE_TEST_SUITE_P(Idiomas, LosControles, ::testing::Bool(),
                         [](const auto& i) { return i.param ? "Euskera" : "Castellano"; });

TEST_F(PantallaGeneral, AnchosDeLosCampos) {
    abrirNueva();
    const std::pair<const char16_t*, int> anchos[] = {{u"txtDNI", 9},
                                                      {u"txtDNIRepresentante", 9},
                                                      {u"txtDNIAnterior", 9},
                                                      {u"txtNombre", 40},
                                                      {u"txtNombreRepresentante", 40},
                                                      {u"txtNombreAnterior", 40},
                                                      {u"txtNumeroArchivo", 10},
                                                      {u"txtFirmaEnCalidadDe", 40}};
    for (const auto& [nombre, ancho] : anchos)
        EXPECT_EQ(c<QLineEdit>(nombre)->maxLength(), ancho) << s(nombre);
}

TEST_F(PantallaGeneral, ElFocoInicialEstaEnElNif) {
    abrirNueva();
    EXPECT_EQ(pantalla->FocoInicial()->objectName(), QStringLiteral("txtDNI"));
}

TEST_F(PantallaGeneral, ElTabuladorSigueElOrdenDeLectura) {
    generalesValidos(g);
    g.Causa1 = QStringLiteral("M");
    g.ElMismo = g.FirmaEnCalidadDe = QString();
    for (const auto& casilla : CasillasApartado()) g.*casilla.bandera = QStringLiteral("X");
    const auto visitados = [this](const char16_t* causa2) {
        g.Causa2 = q(causa2);
        abrirRegistro();
        QStringList nombres;
        for (QString nombre = foco(); !nombres.contains(nombre); nombre = foco()) {
            nombres << nombre;
            tab();
        }
        return nombres.join(u' ');
    };
    const QString antes = QStringLiteral(
        "txtDNI txtNombre txtNumeroArchivo mskFechaDeclaracion chkDeclaracionPrevia "
        "chkDeclaracionInicio chkDeclaracionModificacion chkDeclaracionCese "
        "mskFechaModificacion Pestaña chkPorComienzo ");
    const QString despues = QStringLiteral(
        "chkPorOtrasCausas chkApartado2 cmdApartado2 chkApartado3 cmdApartado3 chkApartado4 "
        "cmdApartado4 chkApartado5 cmdApartado5 cmdApartado6 chkApartado7 cmdApartado7 "
        "chkApartado8 cmdAnexo chkAnexoII cmdAnexoII chkElMismo txtDNIRepresentante "
        "txtNombreRepresentante txtFirmaEnCalidadDe cmdAnterior cmdImprimir cmdAceptar "
        "cmdCancelar");
    EXPECT_EQ(visitados(u"A"),
              antes +
                  QStringLiteral("mskFechaConst chkModificacionFormaJuridica "
                                 "chkAnulacionPorCese chkPorExtravio chkPorDefinitivo ") +
                  despues);
    EXPECT_EQ(visitados(u"E"),
              antes +
                  QStringLiteral("chkModificacionFormaJuridica chkAnulacionPorCese "
                                 "chkPorExtravio chkPorDefinitivo mskFechaInscrip ") +
                  despues);
}

}  // namespace
}  // namespace padral::pruebas
