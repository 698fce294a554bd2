// Every control of section 3 by its name, in both editions and languages.

#include "location/section3_fixture.h"

namespace padral::pruebas {
namespace {

struct Control {
    const char16_t* nombre;
    int caption;
    int ayuda = 0;  ///< 0: no tool tip
};
constexpr Control Controles[] = {
    {u"lblSi", 137},
    {u"lblNo", 138},
    {u"lblResidente", 139},
    {u"lblPorcenIVA", 149},
    {u"lblEpigrafe", 146},
    {u"lblDescripcionActividad", 147},
    {u"lblactivecon", 697},
    {u"lblFormaJuridica", 143},
    {u"lblDescFormaJuridica", 142},
    {u"lblAnagrama", 141},
    {u"lblSocPat", 841},
    {u"chkCastellano", 625},
    {u"chkEuskera", 626},
    {u"chkPostal", 850},
    {u"chkElectronico", 851},
    {u"lblCorreo", 853},
    {u"lblDirCorreo", 856},
    {u"lblFax", 858},
    {u"lblNumFax", 859},
    {u"lblTelMovil", 861},
    {u"lblNumMovil", 862},
    {u"lblTelFijo", 864},
    {u"lblNumFijo", 865},
    {u"chkCorreoAlta", 854},
    {u"chkCorreoBaja", 855},
    {u"chkFaxAlta", 854},
    {u"chkFaxBaja", 855},
    {u"chkTelMovilAlta", 854},
    {u"chkTelMovilBaja", 855},
    {u"chkTelFijoAlta", 854},
    {u"chkTelFijoBaja", 855},
    {u"lblConsentimiento", 866},
    {u"lblRevocacion", 867},
    {u"cmdInicio", 670, 671},
    {u"cmdCancelar", 14, 96},
    {u"cmdAnterior", 10, 11},
    {u"cmdSiguiente", 12, 13},
};
/// Frames and the caption that stands in each.
constexpr Control Marcos[] = {{u"fraDatosAd", 847}, {u"fraPrefCom", 848}, {u"fraMedioCom", 849},
                              {u"fraCorreo", 852},  {u"fraFax", 857},     {u"fraMovil", 860},
                              {u"fraFijo", 863}};
constexpr const char16_t* SinTexto[] = {u"optResidente(0)",
                                        u"optResidente(1)",
                                        u"numPorcenIVA",
                                        u"mskFechaInicio",
                                        u"txtDescripcionActividad",
                                        u"cmbEpigrafe",
                                        u"txtSinEpigrafe",
                                        u"numFormaJuridica",
                                        u"cmbDescFormaJuridica",
                                        u"txtOtros",
                                        u"txtAnagrama",
                                        u"mskFechaCierre",
                                        u"chkSocPat",
                                        u"txtDirCorreo",
                                        u"numFax",
                                        u"numMovil",
                                        u"numFijo",
                                        u"chkConsentimiento",
                                        u"chkRevocacion",
                                        u"PicInicio",
                                        u"PicCan",
                                        u"PicAnterior",
                                        u"PicSiguiente"};

class Controles3 : public PantallaApartado3, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        PantallaApartado3::SetUp();
        if (GetParam()) enEuskera();
    }
};

TEST_P(Controles3, ConSuTextoYSuAyuda) {
    for (const auto edicion : {Edicion::Hasta2014, Edicion::Desde2015}) {
        abrir(edicion);
        for (const auto& control : Controles) {
            SCOPED_TRACE(s(control.nombre));
            auto* w = c(control.nombre);
            ASSERT_TRUE(w);
            EXPECT_EQ(w->property("text").toString(), estado.Texto(control.caption));
            EXPECT_EQ(w->toolTip(), control.ayuda ? estado.Texto(control.ayuda) : QString());
        }
        for (const auto& marco : Marcos) {
            const auto rotulos = c(marco.nombre)->findChildren<QLabel*>();
            EXPECT_TRUE(std::ranges::any_of(rotulos, [&](const QLabel* l) {
                return l->text() == estado.Texto(marco.caption);
            })) << s(marco.nombre);
        }
        for (const auto* nombre : SinTexto) EXPECT_TRUE(c(nombre)) << s(nombre);
        EXPECT_EQ(pantalla->windowTitle(), estado.Texto(136));
    }
}

TEST_P(Controles3, LasDosFechasConSuMascara) {
    abrir();
    const bool euskera = GetParam();
    EXPECT_EQ(c<QLabel>(u"lblFechaInicio")->text(),
              euskera ? q(u"Hasierako Data yyyy/mm/dd") : q(u"Fecha de Inicio dd/mm/yyyy"));
    EXPECT_EQ(fecha(u"mskFechaInicio"), euskera ? q(u"____/__/__") : q(u"__/__/____"));
    EXPECT_EQ(c<QLabel>(u"lblFechaCierre")->text(),
              euskera ? q(u"Itxierako Data  (EEHH)") : q(u"Fecha de Cierre  (DDMM)"));
    EXPECT_EQ(fecha(u"mskFechaCierre"), q(u"__/__"));
}

TEST_P(Controles3, TodosDicenQueSonAQuienNoVe) {
    abrir();
    for (auto* w : pantalla->findChildren<QWidget*>()) {
        // The lists of the combos are windows of their own.
        if ((w->focusPolicy() & Qt::TabFocus) == 0 || w->window() != pantalla.get()) continue;
        EXPECT_FALSE(w->accessibleName().trimmed().isEmpty()) << w->objectName().toStdString();
    }
    const auto altas = {std::pair{u"chkCorreoAlta", 852},
                        {u"chkFaxAlta", 857},
                        {u"chkTelMovilAlta", 860},
                        {u"chkTelFijoAlta", 863}};
    for (const auto& [nombre, canal] : altas)
        EXPECT_EQ(c(nombre)->accessibleName(), estado.Texto(canal) + q(u": ") + estado.Texto(854));
    EXPECT_EQ(c(u"optResidente(1)")->accessibleName(),
              estado.Texto(139) + u' ' + estado.Texto(138));
}
INSTANTIATE_TEST_SUITE_P(Idiomas, Controles3, ::testing::Bool(),
                         [](const auto& i) { return i.param ? "Euskera" : "Castellano"; });

TEST_F(PantallaApartado3, CadaEtiquetaEsDeSuCampo) {
    abrir();
    const std::pair<const char16_t*, const char16_t*> parejas[] = {
        {u"lblResidente", u"optResidente(0)"},
        {u"lblSi", u"optResidente(0)"},
        {u"lblNo", u"optResidente(1)"},
        {u"lblPorcenIVA", u"numPorcenIVA"},
        {u"lblFechaInicio", u"mskFechaInicio"},
        {u"lblEpigrafe", u"txtDescripcionActividad"},
        {u"lblDescripcionActividad", u"cmbEpigrafe"},
        {u"lblactivecon", u"txtSinEpigrafe"},
        {u"lblActRevMov", u"chkActVenMov"},
        {u"lblFormaJuridica", u"numFormaJuridica"},
        {u"lblDescFormaJuridica", u"cmbDescFormaJuridica"},
        {u"lblAnagrama", u"txtAnagrama"},
        {u"lblFechaCierre", u"mskFechaCierre"},
        {u"lblSocPat", u"chkSocPat"},
        {u"lblDirCorreo", u"txtDirCorreo"},
        {u"lblNumFax", u"numFax"},
        {u"lblNumMovil", u"numMovil"},
        {u"lblNumFijo", u"numFijo"},
        {u"lblCorreo", u"chkCorreoAlta"},
        {u"lblFax", u"chkFaxAlta"},
        {u"lblTelMovil", u"chkTelMovilAlta"},
        {u"lblTelFijo", u"chkTelFijoAlta"},
        {u"lblConsentimiento", u"chkConsentimiento"},
        {u"lblRevocacion", u"chkRevocacion"}};
    for (const auto& [etiqueta, campo] : parejas)
        EXPECT_EQ(c<QLabel>(etiqueta)->buddy(), c(campo)) << s(etiqueta);
}

TEST_F(PantallaApartado3, SoloLaEdicionNuevaPreguntaALosRevendedores) {
    abrir(Edicion::Hasta2014);
    EXPECT_EQ(pantalla->objectName(), q(u"FrmApartado3"));
    EXPECT_EQ(pantalla->findChild<QWidget*>(q(u"chkActVenMov")), nullptr);
    EXPECT_EQ(pantalla->findChild<QWidget*>(q(u"lblActRevMov")), nullptr);
    abrir(Edicion::Desde2015);
    EXPECT_EQ(pantalla->objectName(), q(u"FrmApartado3_2015"));
    EXPECT_EQ(c<QLabel>(u"lblActRevMov")->text(), estado.Texto(880));
}

TEST_F(PantallaApartado3, AnchosDeLosCampos) {
    abrir();
    const std::pair<const char16_t*, int> anchos[] = {
        {u"numPorcenIVA", 3},    {u"txtDescripcionActividad", 7},
        {u"txtSinEpigrafe", 30}, {u"numFormaJuridica", 2},
        {u"txtOtros", 20},       {u"txtAnagrama", 20},
        {u"numFax", 9},          {u"numMovil", 9},
        {u"numFijo", 9}};
    for (const auto& [nombre, ancho] : anchos)
        EXPECT_EQ(c<QLineEdit>(nombre)->maxLength(), ancho) << s(nombre);
}

TEST_F(PantallaApartado3, ElTabuladorSigueElOrdenDeLectura) {
    valida();
    r.Correo = r.Fax = r.Movil = r.Fijo = q(u"A");
    r.DirCorreo = q(u"A@B.C");
    const auto visitados = [this] {
        QStringList nombres;
        for (QString nombre = foco(); !nombres.contains(nombre); nombre = foco()) {
            nombres << nombre;
            tecla(Qt::Key_Tab);
        }
        return nombres.join(u' ');
    };
    const QString comunes = q(
        u"chkSocPat chkCastellano chkEuskera chkPostal chkElectronico chkCorreoAlta chkCorreoBaja "
        u"txtDirCorreo chkFaxAlta chkFaxBaja numFax chkTelMovilAlta chkTelMovilBaja numMovil "
        u"chkTelFijoAlta chkTelFijoBaja numFijo chkConsentimiento chkRevocacion cmdInicio "
        u"cmdCancelar cmdAnterior cmdSiguiente optResidente(0)");
    abrir();
    EXPECT_EQ(visitados(),
              q(u"numPorcenIVA mskFechaInicio txtDescripcionActividad cmbEpigrafe chkActVenMov "
                u"cmbDescFormaJuridica txtAnagrama mskFechaCierre ") +
                  comunes);
    sinEpigrafe(u"AFINADOR");
    otraForma(u"COFRADIA");
    abrir(Edicion::Hasta2014);
    EXPECT_EQ(visitados(),
              q(u"numPorcenIVA mskFechaInicio txtDescripcionActividad txtSinEpigrafe txtOtros "
                u"txtAnagrama mskFechaCierre ") +
                  comunes);
}

}  // namespace
}  // namespace padral::pruebas
