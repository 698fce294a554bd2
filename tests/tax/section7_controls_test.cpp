// Every control of section 7 by its name, in both languages.

#include "tax/section7_fixture.h"

namespace padral::pruebas {
namespace {

struct Control {
    const char16_t* nombre;
    int caption;
    const char16_t* castellano;  ///< without the blanks that only made room
    int ayuda = 0;               ///< 0: no tool tip
    const char16_t* textoAyuda = u"";
};
constexpr Control Controles[] = {
    {u"Label2", 280, u"VENTAS A DISTANCIA:"},
    {u"Label3", 279,
     u"Gravamen en origen o en destino (Artículo 68 D. Foral 102/92 de 29 de diciembre de "
     u"adaptación del IVA)"},
    {u"Label4", 278,
     u"- A otros Estados miembros de la U.E. (Artículo 68.4 D.Foral 102/92 de 29 de diciembre de "
     u"adaptación del IVA)"},
    {u"Label5", 277, u"SUPERADO LÍMITE"},
    {u"Label6", 211, u"Si"},
    {u"Label7", 138, u"No"},
    {u"Label8", 276, u"DESTINO"},
    {u"Label9", 275, u"REVOCACIÓN (Origen)"},
    {u"Label24", 672,
     u"SUJETOS PASIVOS EN REGIMEN ESPECIAL DE LA AGRICULTURA, GANADERIA Y PESCA, SUJETOS PASIVOS "
     u"EXENTOS Y PERSONAS JURIDICAS QUE NO ACTUEN COMO EMPRESARIOS O PROFESIONALES"},
    {u"Label25", 260, u"Régimen especial de la Agricultura, Ganadería y Pesca"},
    {u"Label26", 259, u"Sujetos Pasivos Exentos"},
    {u"Label27", 258, u"Personas Jurídicas no empresarios o profesionales"},
    {u"Label28", 257, u"- ¿Ha superado el límite de 10.000 EUROS en sus Adqu. Intracomunitarias?"},
    {u"Label29", 256, u"- Opción por la tributación en destino de las Adqu. Intra. de Bienes"},
    {u"cmdInicio", 670, u"&Inicio", 671, u"Muestra el panel Datos Generales"},
    {u"cmdCancelar", 14, u"&Cancelar", 96, u"Salir. No se salvan los cambios."},
    {u"cmdAnterior", 10, u"&Anterior", 11},
    {u"cmdSiguiente", 12, u"&Siguiente", 13,
     u"Se accede al apartado siguiente. Se salvan los cambios."},
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
        EXPECT_EQ(w->property("text").toString().simplified(),
                  estado.Texto(control.caption).simplified());
        EXPECT_EQ(w->toolTip(), control.ayuda ? estado.Texto(control.ayuda) : QString());
        if (GetParam()) continue;
        EXPECT_EQ(w->property("text").toString().simplified(), q(control.castellano));
        if (*control.textoAyuda != u'\0') {
            EXPECT_EQ(w->toolTip(), q(control.textoAyuda));
        }
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
        const char16_t* nombre;
        int pregunta, palabra;
    } casos[] = {{u"chkAgric", 260, 0},           {u"chkExentos", 259, 0},
                 {u"chkNoEmp", 258, 0},           {u"chkMasLimEuros", 257, 337},
                 {u"chkMenosLimEuros", 257, 340}, {u"chkOpcion", 256, 339},
                 {u"chkRevocacion", 256, 338}};
    for (const auto& caso : casos) {
        QString esperado = estado.Texto(caso.pregunta);
        if (caso.palabra != 0)
            esperado = esperado.mid(2) + u' ' + estado.Texto(caso.palabra).trimmed();
        EXPECT_EQ(nombreDe(q(caso.nombre)), esperado);
    }
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
