// Section 2 on a small screen: nothing cut, nothing hidden, in both languages and with big letters.

#include "location/section2_fixture.h"
#include "screens/screen_aspects.h"

namespace padral::pruebas {
namespace {

using Aspectos = ConAspecto<PantallaApartado2>;

TEST_P(Aspectos, NadaSaleCortado) {
    r.Fis = enProvinciaPropia();
    r.Act = completa();
    r.ElMismoSoc = q(u"X");
    abrir();
    pantalla->resize(1240, std::max(600, pantalla->minimumSizeHint().height()));
    QCoreApplication::processEvents();
    EXPECT_LE(pantalla->minimumSizeHint().width(), 1240);
    revisar();
}
INSTANTIATE_TEST_SUITE_P(Tamanos, Aspectos,
                         ::testing::Values(Aspecto{false, 1}, Aspecto{true, 1}, Aspecto{false, 1.5},
                                           Aspecto{true, 1.5}));

using Tamano = PantallaApartado2;

TEST_F(Tamano, CabeEnteraEnUnaVentanaPequena) {
    abrir();
    EXPECT_LE(pantalla->minimumSizeHint().height(), 600);
}

TEST_F(Tamano, LosCodigosYLosNombresCaben) {
    r.Fis = enProvinciaPropia();
    abrir();
    const std::pair<const char16_t*, QString> llenos[] = {
        {u"txtSigDom", q(u"WW")}, {u"numNum", q(u"88888")},     {u"txtMan", q(u"WWW")},
        {u"numCod", q(u"88888")}, {u"numCodProv", q(u"88")},    {u"numCodMun", q(u"888")},
        {u"txtLet", q(u"WW")},    {u"numTel", q(u"888888888")}, {u"txtDom", QString(30, u'N')}};
    for (const auto& domicilio : DomiciliosEsperados)
        for (const auto& [campo, texto] : llenos) {
            const auto* w = c<QLineEdit>(nombre(campo, domicilio));
            EXPECT_LT(w->fontMetrics().horizontalAdvance(texto) + 8, w->width()) << s(campo);
        }
}

}  // namespace
}  // namespace padral::pruebas
