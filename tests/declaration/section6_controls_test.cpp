// Every control of section 6 by its name, and how the screen looks in both languages.

#include "declaration/section6_fixture.h"
#include "screens/screen_aspects.h"

namespace padral::pruebas {
namespace {

struct Control {
    const char16_t* nombre;
    const char16_t *castellano, *euskera;
    const char16_t *ayuda = u"", *ayudaEuskera = u"";
};
constexpr Control Controles[] = {
    {u"lblTituloPantalla", u"APARTADO 6. CESE DE ACTIVIDAD", u"6. ATALA. JARDUERAREN AMAIERA"},
    {u"Label1", u"Descripción de la causa", u"Arrazoiaren deskribapena"},
    {u"Label2", u"Causa del cese (código)", u"Amaieraren arrazoia (kodea)"},
    {u"Label3", u"Fecha de cese efectivo", u"Benetako amaieraren data"},
    {u"lbl4", u"Fecha de inscripción en el registro", u"Erregistroko inskripzio data"},
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
constexpr std::pair<const char16_t*, const char16_t*> Etiquetas[] = {{u"Label3", u"txtFecha"},
                                                                     {u"Label2", u"txtCausa"},
                                                                     {u"Label1", u"cmbDescripcion"},
                                                                     {u"lbl4", u"txtInscripcion"}};

class Controles6 : public PantallaApartado6, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        PantallaApartado6::SetUp();
        if (GetParam()) enEuskera();
    }
};

TEST_P(Controles6, ConSuTextoYSuAyuda) {
    abrir();
    for (const auto& control : Controles) {
        SCOPED_TRACE(s(control.nombre));
        EXPECT_EQ(rotulo(control.nombre), q(GetParam() ? control.euskera : control.castellano));
        EXPECT_EQ(c(control.nombre)->toolTip(),
                  q(GetParam() ? control.ayudaEuskera : control.ayuda));
    }
    EXPECT_EQ(pantalla->windowTitle(), GetParam() ? q(u"6. ATALA. JARDUERAREN AMAIERA")
                                                  : q(u"APARTADO 6. CESE DE ACTIVIDAD"));
    for (const auto* nombre : {u"txtFecha", u"txtInscripcion"})
        EXPECT_EQ(c(nombre)->accessibleDescription(),
                  GetParam() ? q(u"yyyy/mm/dd") : q(u"dd/mm/yyyy"));
    for (const auto* nombre : {u"PicInicio", u"PicCan", u"PicAnterior", u"PicSiguiente"})
        EXPECT_TRUE(visible(nombre)) << s(nombre);
}

TEST_P(Controles6, CadaCampoTieneSuEtiquetaYSuNombre) {
    poner(20150331, 99, u"JUBILACION");
    abrir();
    for (const auto& [etiqueta, campo] : Etiquetas) {
        EXPECT_EQ(c<QLabel>(etiqueta)->buddy(), c(campo)) << s(etiqueta);
        EXPECT_EQ(c(campo)->accessibleName(), rotulo(etiqueta)) << s(campo);
        EXPECT_LT(c(etiqueta)->x(), c(campo)->x());
    }
    EXPECT_EQ(c(u"txtSinEpigrafe")->accessibleName(),
              GetParam() ? q(u"Beste arrazoi batzuk") : q(u"Otras causas"));
    int anterior = 0;
    for (const auto* campo :
         {u"txtFecha", u"txtCausa", u"cmbDescripcion", u"txtSinEpigrafe", u"txtInscripcion"}) {
        EXPECT_EQ(c(campo)->x(), c(u"txtFecha")->x()) << s(campo);
        EXPECT_GT(c(campo)->y(), anterior) << s(campo);
        anterior = c(campo)->geometry().bottom();
    }
}
INSTANTIATE_TEST_SUITE_P(Idiomas, Controles6, ::testing::Bool(),
                         [](const auto& i) { return i.param ? "Euskera" : "Castellano"; });

class Aspectos6 : public ConAspecto<PantallaApartado6> {
protected:
    void comprobar() override {
        EXPECT_LE(pantalla->height(), 600);
        for (const auto* campo : {u"txtFecha", u"txtInscripcion", u"txtCausa", u"txtSinEpigrafe"}) {
            const auto* w = c<QLineEdit>(campo);
            EXPECT_LT(w->fontMetrics().horizontalAdvance(w->displayText()), w->width()) << s(campo);
        }
    }
};

TEST_P(Aspectos6, NadaSaleCortado) {
    abrir();
    mirar();
    poner(20151231, 99, u"WWWWWWWWWWWWWWWWWWWW", 20151231);
    abrir();
    mirar();
    const auto* combo = c<QComboBox>(u"cmbDescripcion");
    for (const auto& fila : filas())
        EXPECT_LT(combo->fontMetrics().horizontalAdvance(fila), combo->width());
}
INSTANTIATE_TEST_SUITE_P(Tamanos, Aspectos6,
                         ::testing::Values(Aspecto{false, 1}, Aspecto{true, 1}, Aspecto{false, 1.5},
                                           Aspecto{true, 1.5}));

}  // namespace
}  // namespace padral::pruebas
