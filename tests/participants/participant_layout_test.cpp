// A participant on a small screen: nothing cut, nothing hidden, in both languages and with big
// letters.

#include <QLabel>

#include "participants/participant_fixture.h"
#include "screens/screen_aspects.h"

namespace padral::pruebas {
namespace {

using AspectosParticipe = ConAspecto<PantallaParticipe>;

TEST_P(AspectosParticipe, NadaSaleCortado) {
    abrirNuevo();
    mirar();
    verUno(participeCompleto());
    enfocar(u"chkEDModulos2");
    mirar();
}

TEST_P(AspectosParticipe, LoQueCabeEnElRegistroSeVeEntero) {
    verUno(participePropio());
    const std::pair<const char16_t*, QString> llenos[] = {
        {u"txtDNI", q(u"W8888888W")},    {u"txtNombre", QString(30, u'N')},
        {u"txtSiglas", q(u"WW")},        {u"txtDomicilio", QString(30, u'N')},
        {u"txtNumero", q(u"88888")},     {u"txtMano", q(u"WWW")},
        {u"txtCodProvincia", q(u"88")},  {u"txtCodigoPostal", q(u"88888")},
        {u"txtCodMunicipio", q(u"888")}, {u"txtTelefono", q(u"888888888")},
        {u"txtPorcentaje", q(u"888,88")}};
    for (const auto& [nombre, texto] : llenos) {
        const auto* campo = c<QLineEdit>(nombre);
        EXPECT_LT(campo->fontMetrics().horizontalAdvance(texto) + 8, campo->width()) << s(nombre);
    }
}
INSTANTIATE_TEST_SUITE_P(Tamanos, AspectosParticipe,
                         ::testing::Values(Aspecto{false, 1}, Aspecto{true, 1}, Aspecto{false, 1.5},
                                           Aspecto{true, 1.5}));

TEST_F(PantallaParticipe, CabeEnteraEnUnaVentanaPequena) {
    verUno(participeCompleto());
    EXPECT_LE(pantalla->minimumSizeHint().height(), 600);
    EXPECT_LE(pantalla->minimumSizeHint().width(), 1240);
}

TEST_F(PantallaParticipe, CadaEtiquetaEsDeSuCampo) {
    const std::pair<const char16_t*, const char16_t*> parejas[] = {
        {u"lblDNI", u"txtDNI"},
        {u"lblNombre", u"txtNombre"},
        {u"Label1", u"txtSiglas"},
        {u"Label2", u"txtDomicilio"},
        {u"lblNumeroArchivo", u"txtNumero"},
        {u"Label11", u"txtLetra"},
        {u"Label12", u"txtEscalera"},
        {u"Label13", u"txtPiso"},
        {u"Label14", u"txtMano"},
        {u"Label3", u"txtCodProvincia"},
        {u"Label5", u"txtCodigoPostal"},
        {u"Label4", u"txtCodMunicipio"},
        {u"Label6", u"txtTelefono"},
        {u"lblFechaDeclaracion", u"txtPorcentaje"},
        {u"lblApartado2", u"chkEDSimplificada1"},
        {u"lblApartado3", u"chkEDModulos1"},
        {u"Label9", u"ChkRegSimplificada1"},
        {u"Label10", u"chkRegAgraria1"}};
    verUno();
    for (const auto& [etiqueta, campo] : parejas)
        EXPECT_EQ(c<QLabel>(etiqueta)->buddy(), c(campo)) << s(etiqueta);
    for (const auto* control : pantalla->findChildren<QWidget*>())
        for (const auto* tipo : {"QLineEdit", "QAbstractButton", "QListWidget"}) {
            if (!control->inherits(tipo)) continue;
            EXPECT_FALSE(control->accessibleName().isEmpty())
                << control->objectName().toStdString();
        }
}

}  // namespace
}  // namespace padral::pruebas
