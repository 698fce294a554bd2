// Every control of section 7 by its name, in both languages.

#include "tax/section7_fixture.h"

namespace padral::pruebas {
namespace {

struct Control {
    const char16_t* nombre;
    const char16_t *castellano, *euskera;  ///< with the blanks that make room in them
    const char16_t *ayuda = u"", *ayudaEuskera = u"";
};
constexpr Control Controles[] = {
    {u"lblTituloPantalla", u" APARTADO 7. OPERACIONES INTRACOMUNITARIAS",
     u" 7. ATALA. BATASUN BARRUKO ERAGIKETAK"},
    {u"Label2", u"VENTAS A DISTANCIA:", u"URRUTIKO SALMENTAK:"},
    {u"Label3",
     u"Gravamen en origen o en destino (Artículo 68 D. Foral 102/92 de 29 de diciembre de "
     u"adaptación del IVA)",
     u"Jatorriko edo helmugako karga (BEZa egokitzeko abenduaren 29ko 102/92 Foru D.aren 68. "
     u"artikulua)"},
    {u"Label4",
     u"- A otros Estados miembros de la U.E. (Artículo 68.4 D.Foral 102/92 de 29 de diciembre de "
     u"adaptación del IVA)",
     u"- E.B.ko beste Estatu kide batzuetara (BEZa egokitzeko abenduaren 29ko 102/92 Foru D.aren "
     u"68.4 artikulua)"},
    {u"Label5", u"SUPERADO LÍMITE", u"MUGA GAINDITUTA"},
    {u"Label6", u"Si", u"Bai"},
    {u"Label7", u"No", u"Ez"},
    {u"Label8", u"DESTINO", u"HELMUGA"},
    {u"Label9", u"REVOCACIÓN      (Origen)", u"ATZERA EGITEA      (Jatorria)"},
    {u"Label24",
     u"SUJETOS PASIVOS EN REGIMEN ESPECIAL DE LA AGRICULTURA, GANADERIA Y PESCA, SUJETOS PASIVOS "
     u"EXENTOS Y PERSONAS JURIDICAS QUE NO ACTUEN COMO EMPRESARIOS O PROFESIONALES",
     u"NEKAZARITZA, ABELTZAINTZA ETA ARRANTZAREN ARAUBIDE BEREZIAN DAUDEN SUBJEKTU PASIBOAK, "
     u"SUBJEKTU PASIBO SALBUETSIAK ETA ENPRESARI EDO PROFESIONAL MODUAN JARDUTEN EZ DUTEN PERTSONA "
     u"JURIDIKOAK"},
    {u"Label25", u"Régimen especial de la Agricultura, Ganadería y Pesca",
     u"Nekazaritza, Abeltzaintza eta Arrantzaren araubide berezia"},
    {u"Label26", u"Sujetos Pasivos Exentos", u"Subjektu Pasibo Salbuetsiak"},
    {u"Label27", u"Personas Jurídicas no empresarios o profesionales",
     u"Enpresari edo profesional ez diren Pertsona Juridikoak"},
    {u"Label28", u"- ¿Ha superado el límite de 10.000 EUROS en sus Adqu. Intracomunitarias?",
     u"- 10.000 EUROKO muga gainditu al duzu zure Batasun Barruko Eskurapenetan?"},
    {u"Label29", u"- Opción por la tributación en destino de las Adqu. Intra. de Bienes",
     u"- Ondasunen Batasun Barruko Eskurapenak helmugan zergapetzeko aukera"},
    {u"cmdInicio", u"   &Inicio", u"   &Hasiera", u"Muestra el panel Datos Generales",
     u"Datu Orokorren panela erakusten du"},
    {u"cmdCancelar", u"&Cancelar", u"Ut&zi", u"Salir. No se salvan los cambios.",
     u"Irten. Aldaketak ez dira gordeko."},
    {u"cmdAnterior", u"   &Anterior", u"   Au&rrekoa",
     u"Se accede al apartado anterior. Se salvan los cambios.",
     u"Aurreko atalera joango da. Aldaketak gorde egingo dira."},
    {u"cmdSiguiente", u"     &Siguiente", u"     Hurre&ngoa",
     u"Se accede al apartado siguiente. Se salvan los cambios.",
     u"Hurrengo atalera joango da. Aldaketak gorde egingo dira."},
};

class Controles7 : public PantallaApartado7, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        PantallaApartado7::SetUp();
        if (GetParam()) enEuskera();
        abrir();
    }
    QString nombreDe(const QString& control) { return c(control)->accessibleName(); }
};

TEST_P(Controles7, ConSuTextoYSuAyuda) {
    for (const auto& control : Controles) {
        SCOPED_TRACE(s(control.nombre));
        auto* w = c(q(control.nombre));
        ASSERT_TRUE(w);
        EXPECT_EQ(w->property("text").toString(),
                  q(GetParam() ? control.euskera : control.castellano));
        EXPECT_EQ(w->toolTip(), q(GetParam() ? control.ayudaEuskera : control.ayuda));
    }
    EXPECT_EQ(pantalla->objectName(), q(u"FrmApartado7"));
    EXPECT_EQ(pantalla->windowTitle(), GetParam() ? q(u" 7. ATALA. BATASUN BARRUKO ERAGIKETAK")
                                                  : q(u" APARTADO 7. OPERACIONES "
                                                      u"INTRACOMUNITARIAS"));
}

TEST_P(Controles7, CadaCasillaDiceSuEstadoYSuColumna) {
    const char16_t* const columnas[][2] = {
        {u", SUPERADO LÍMITE, Si", u", MUGA GAINDITUTA, Bai"},
        {u", SUPERADO LÍMITE, No", u", MUGA GAINDITUTA, Ez"},
        {u", DESTINO", u", HELMUGA"},
        {u", REVOCACIÓN (Origen)", u", ATZERA EGITEA (Jatorria)"}};
    for (const auto& e : Estados7)
        for (std::size_t i = 0; i < std::size(Columnas7); ++i)
            EXPECT_EQ(nombreDe(q(Columnas7[i].prefijo) + QString::number(e.sufijo)),
                      q(GetParam() ? e.euskera : e.castellano).trimmed() +
                          q(columnas[i][GetParam() ? 1 : 0]));
}

TEST_P(Controles7, LasDeLosSujetosDicenSuPregunta) {
    const struct {
        const char16_t *nombre, *castellano, *euskera;
    } casos[] = {
        {u"chkAgric", u"Régimen especial de la Agricultura, Ganadería y Pesca",
         u"Nekazaritza, Abeltzaintza eta Arrantzaren araubide berezia"},
        {u"chkExentos", u"Sujetos Pasivos Exentos", u"Subjektu Pasibo Salbuetsiak"},
        {u"chkNoEmp", u"Personas Jurídicas no empresarios o profesionales",
         u"Enpresari edo profesional ez diren Pertsona Juridikoak"},
        {u"chkMasLimEuros",
         u"¿Ha superado el límite de 10.000 EUROS en sus Adqu. Intracomunitarias? SI",
         u"10.000 EUROKO muga gainditu al duzu zure Batasun Barruko Eskurapenetan? BAI"},
        {u"chkMenosLimEuros",
         u"¿Ha superado el límite de 10.000 EUROS en sus Adqu. Intracomunitarias? NO",
         u"10.000 EUROKO muga gainditu al duzu zure Batasun Barruko Eskurapenetan? EZ"},
        {u"chkOpcion", u"Opción por la tributación en destino de las Adqu. Intra. de Bienes OPCIÓN",
         u"Ondasunen Batasun Barruko Eskurapenak helmugan zergapetzeko aukera AUKERATZEA"},
        {u"chkRevocacion",
         u"Opción por la tributación en destino de las Adqu. Intra. de Bienes REVOCACIÓN",
         u"Ondasunen Batasun Barruko Eskurapenak helmugan zergapetzeko aukera ATZERA EGITEA"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(nombreDe(q(caso.nombre)), q(GetParam() ? caso.euskera : caso.castellano));
    for (auto* w : pantalla->findChildren<QWidget*>()) {
        if ((w->focusPolicy() & Qt::TabFocus) == 0) continue;
        EXPECT_FALSE(w->accessibleName().isEmpty()) << w->objectName().toStdString();
    }
}

TEST_P(Controles7, CadaEtiquetaTieneSuCasilla) {
    const std::pair<const char16_t*, const char16_t*> parejas[] = {{u"Label25", u"chkAgric"},
                                                                   {u"Label26", u"chkExentos"},
                                                                   {u"Label27", u"chkNoEmp"},
                                                                   {u"Label28", u"chkMasLimEuros"},
                                                                   {u"Label29", u"chkOpcion"}};
    for (const auto& [etiqueta, casilla] : parejas)
        EXPECT_EQ(c<QLabel>(q(etiqueta))->buddy(), c(q(casilla)));
    for (const auto& [si, no] : {std::pair{u"chkMasLimEuros", u"chkMenosLimEuros"},
                                 std::pair{u"chkOpcion", u"chkRevocacion"}}) {
        EXPECT_EQ(lugar(q(si)).center().y(), lugar(q(no)).center().y());
        EXPECT_LT(lugar(q(si)).right(), lugar(q(no)).left());
    }
}
INSTANTIATE_TEST_SUITE_P(Idiomas, Controles7, ::testing::Bool(),
                         [](const auto& i) { return i.param ? "Euskera" : "Castellano"; });

}  // namespace
}  // namespace padral::pruebas
