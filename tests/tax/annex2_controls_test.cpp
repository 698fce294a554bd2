// Every control of Annex II by its name, in both languages.

#include <QGroupBox>

#include "tax/annex2_fixture.h"

namespace padral::pruebas {
namespace {

struct Control {
    const char16_t* nombre;
    const char16_t *castellano, *euskera;
    const char16_t *ayuda = u"", *ayudaEuskera = u"";
};
constexpr Control Controles[] = {
    {u"lbl1",
     u"¿Actúa en el Territorio Histórico de Kelmaria por medio de establecimiento permanente?",
     u"Kelmariako Lurralde Historikoan establezimendu iraunkorraren bidez jarduten al duzu?"},
    {u"lbl2", u"Tiene otros establecimientos permanentes en territorio español",
     u"Espainiako lurraldean beste establezimendu iraunkor batzuk ditu"},
    {u"lbl4", u"Les es de aplicación el régimen especial del oro de inversión",
     u"Inbertsio urrearen araubide berezia aplikagarri zaie"},
    {u"lbl5",
     u"¿Obligado a presentar decl. periódicas por el Imp. sobre la Renta de los No Residentes en "
     u"la Hacienda Foral de Kelmaria?",
     u"Behartuta al zaude Ez-egoiliarren Errentaren gaineko Zergaren aldizkako aitorp. Kelmariako "
     u"Foru Ogasunean aurkeztera?"},
    {u"lbl6",
     u"Opción de los establecimientos permanentes cuya actividad consiste en construcción, "
     u"instalación o montaje por la tributación por el régimen general de los establecimientos "
     u"permanentes",
     u"Eraikuntza, instalazio edo muntaia jarduera duten establezimendu iraunkorrek "
     u"establezimendu iraunkorren araubide orokorrean zerga ordaintzea aukeratzea"},
    {u"lbl7", u"Opción a la aplicación de la regla de prorrata especial",
     u"Hainbanaketa bereziaren erregela aplikatzea aukeratzea"},
    {u"lbl8", u"Modificación del porcentaje provisional de prorrata general",
     u"Hainbanaketa orokorraren behin-behineko ehunekoa aldatzea"},
    {u"lbl15", u"% Propuesto", u"% Proposatua"},
    {u"lblSi", u"Sí", u"Bai"},
    {u"lblNo", u"No", u"Ez"},
    {u"chkCierra", u"Con actividad continuada que cierra el ciclo mercantil",
     u"Merkataritza zikloa ixten duen jarduera jarraituarekin"},
    {u"chkOcasional", u"Con actividad ocasional", u"Noizbehinkako jarduerarekin"},
    {u"chkNoCierra", u"Instalaciones permanentes aunque no cierren ciclo mercantil",
     u"Instalazio iraunkorrak, merkataritza zikloa itxi ez arren"},
    {u"chkOpcion", u"Opción", u"Aukeratzea"},
    {u"chkRevocacion", u"Revocación", u"Atzera egitea"},
    {u"lblDomicilio", u"Domicilio", u"Helbidea"},
    {u"lblMunicipio", u"Municipio", u"Udalerria"},
    {u"lblNacionalidad", u"Nacionalidad", u"Nazionalitatea"},
    {u"lblFormaJuridica", u"Forma jurídica o clase entidad", u"Izaera juridikoa edo entitate mota"},
    {u"lblNif", u"NIF", u"IFZ"},
    {u"lblNombre", u"Apellidos y Nombre, o Razón Social",
     u"Deiturak eta izena, edo sozietatearen izena"},
    {u"lblNacionalidadRep", u"Nacionalidad", u"Nazionalitatea"},
    {u"lblRepDomicilio", u"Domicilio", u"Helbidea"},
    {u"lblProvincia", u"Provincia", u"Probintzia"},
    {u"lblMunicipioRep", u"Municipio", u"Udalerria"},
    {u"cmdListaProvincias", u"....", u"....",
     u"Muestra una lista con las diferentes provincias españolas.",
     u"Espainiako probintzien zerrenda erakusten du."},
    {u"cmdListaMunicipios", u"....", u"....",
     u"Muestra una lista con los diferentes municipios de Kelmaria.",
     u"Kelmariako udalerrien zerrenda erakusten du."},
    {u"cmdInicio", u"   &Inicio", u"   &Hasiera", u"Muestra el panel Datos Generales",
     u"Datu Orokorren panela erakusten du"},
    {u"cmdCancelar", u"&Cancelar", u"Ut&zi", u"Salir. No se salvan los cambios.",
     u"Irten. Aldaketak ez dira gordeko."},
    {u"cmdAnterior", u"   &Anterior", u"   Au&rrekoa", u"Se accede al menú principal",
     u"Menu nagusira joango da"},
};
constexpr auto Titulo =
    u"ANEXO II. SUJETOS PASIVOS NO RESIDENTES EN EL TERRITORIO ESPAÑOL Y OTRAS SITUACIONES Y "
    u"OPCIONES EN EL IVA";
constexpr auto Izenburua =
    u"II. ERANSKINA. ESPAINIAKO LURRALDEAN EGOILIAR EZ DIREN SUBJEKTU PASIBOAK ETA BEZeko BESTE "
    u"EGOERA ETA AUKERA BATZUK";

class Controles2 : public PantallaAnexoII, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        PantallaAnexoII::SetUp();
        if (GetParam()) enEuskera();
    }
    QString de(const char16_t* castellano, const char16_t* euskera) const {
        return q(GetParam() ? euskera : castellano);
    }
};

TEST_P(Controles2, ConSuTextoYSuAyuda) {
    abrir();
    for (const auto& control : Controles) {
        SCOPED_TRACE(s(control.nombre));
        EXPECT_EQ(rotulo(control.nombre), de(control.castellano, control.euskera));
        EXPECT_EQ(c(control.nombre)->toolTip(), de(control.ayuda, control.ayudaEuskera));
    }
    EXPECT_EQ(pantalla->objectName(), q(u"frmAnexoII"));
    EXPECT_EQ(pantalla->windowTitle(), de(Titulo, Izenburua));
    EXPECT_EQ(rotulo(u"lblTituloPantalla"), de(Titulo, Izenburua));
    EXPECT_EQ(c<QGroupBox>(u"fraDomicilio")->title(),
              de(u"Domicilio extranjero de los no residentes en territorio español",
                 u"Espainiako lurraldean egoiliar ez direnen atzerriko helbidea"));
    EXPECT_EQ(c<QGroupBox>(u"fraRepresentante")->title(), de(u"Representante", u"Ordezkaria"));
    for (const auto* imagen : {u"PicInicio", u"PicCan", u"PicAnterior"})
        EXPECT_TRUE(visible(imagen));
    EXPECT_FALSE(pantalla->findChild<QWidget*>(q(u"cmdSiguiente"))) << "the chain ends here";
}

TEST_P(Controles2, TodosDicenQueSonAQuienNoVe) {
    completo();
    abrir();
    QStringList nombres;
    for (auto* w : pantalla->findChildren<QWidget*>()) {
        if ((w->focusPolicy() & Qt::TabFocus) == 0 || w->isHidden()) continue;
        EXPECT_FALSE(w->accessibleName().trimmed().isEmpty()) << w->objectName().toStdString();
        EXPECT_FALSE(nombres.contains(w->accessibleName())) << w->accessibleName().toStdString();
        nombres << w->accessibleName();
    }
    EXPECT_EQ(c(u"txtRepDomicilio")->accessibleName(),
              de(u"Representante: Domicilio", u"Ordezkaria: Helbidea"));
    EXPECT_EQ(c(u"chkOcasional")->accessibleName(),
              de(u"Modalidad de establecimiento permanente: Con actividad ocasional",
                 u"Establezimendu iraunkorraren mota: Noizbehinkako jarduerarekin"));
    EXPECT_EQ(c(u"chklbl2Si")->accessibleName(),
              de(u"Tiene otros establecimientos permanentes en territorio español: Sí",
                 u"Espainiako lurraldean beste establezimendu iraunkor batzuk ditu: Bai"));
    EXPECT_EQ(c(u"lstmunicipios")->accessibleName(),
              de(u"Representante: Municipio", u"Ordezkaria: Udalerria"));
}
INSTANTIATE_TEST_SUITE_P(Idiomas, Controles2, ::testing::Bool(),
                         [](const auto& i) { return i.param ? "Euskera" : "Castellano"; });

TEST_F(PantallaAnexoII, CadaEtiquetaEsDeSuCampo) {
    const std::pair<const char16_t*, const char16_t*> parejas[] = {
        {u"lblDomicilio", u"txtDomicilio"},
        {u"lblMunicipio", u"txtNombreMunicipio"},
        {u"lblNacionalidad", u"txtNacionalidad"},
        {u"lblFormaJuridica", u"txtFormaJuridica"},
        {u"lblNif", u"txtNIF"},
        {u"lblNombre", u"txtNombre"},
        {u"lblNacionalidadRep", u"txtNacionalidadRep"},
        {u"lblRepDomicilio", u"txtRepDomicilio"},
        {u"lblProvincia", u"numCodigoProvincia"},
        {u"lblMunicipioRep", u"numCodigoMunicipio"},
        {u"lbl1", u"chklbl1Si"},
        {u"lbl2", u"chklbl2Si"},
        {u"lbl4", u"chklbl4Si"},
        {u"lbl5", u"chklbl5Si"},
        {u"lbl6", u"chklbl6Si"},
        {u"lbl7", u"chkOpcion"},
        {u"lbl8", u"numPorcentaje"},
        {u"lbl15", u"numPorcentaje"}};
    abrir();
    for (const auto& [etiqueta, campo] : parejas)
        EXPECT_EQ(c<QLabel>(etiqueta)->buddy(), c(campo)) << s(etiqueta);
}

/// Where Tab goes, from the first field round to it again.
TEST_F(PantallaAnexoII, ElTabuladorSigueElOrdenDeLectura) {
    const QString antes =
        q(u"txtDomicilio txtNombreMunicipio txtNacionalidad txtFormaJuridica "
          u"txtNIF txtNombre txtNacionalidadRep txtRepDomicilio "
          u"numCodigoProvincia cmdListaProvincias ");
    const QString despues =
        q(u"chklbl1Si chklbl1No chkCierra chkOcasional chkNoCierra chklbl2Si chklbl5Si chklbl5No "
          u"chklbl6Si chklbl6No chklbl4Si chkOpcion chkRevocacion numPorcentaje cmdInicio "
          u"cmdCancelar cmdAnterior");
    for (const bool propia : {false, true}) {
        completo();
        if (propia) enProvinciaPropia();
        abrir();
        QStringList paradas;
        for (QString nombre = foco(); !paradas.contains(nombre); nombre = foco()) {
            paradas << nombre;
            tecla(Qt::Key_Tab);
        }
        const QString municipio =
            propia ? q(u"numCodigoMunicipio cmdListaMunicipios ") : q(u"txtNombreMunRepr ");
        EXPECT_EQ(paradas, (antes + municipio + despues).split(u' '));
        EXPECT_EQ(foco(), q(u"txtDomicilio"));
    }
}

TEST_F(PantallaAnexoII, ElFocoSeleccionaTodo) {
    completo();
    enProvinciaPropia();
    abrir();
    for (const auto* nombre : {u"txtDomicilio", u"txtNIF", u"numCodigoProvincia",
                               u"numCodigoMunicipio", u"numPorcentaje"}) {
        enfocar(nombre);
        EXPECT_EQ(c<QLineEdit>(nombre)->selectedText(), texto(nombre)) << s(nombre);
    }
}

// Yes and no have no caption of their own: an arrow shows the one in hand.
TEST_F(PantallaAnexoII, LaFlechaMuestraLaRespuestaEnMano) {
    completo();
    abrir();
    for (const auto& una : Casillas2) {
        const QString rotuloPropio = rotulo(una.nombre);
        const bool siNo = q(una.nombre).startsWith(u"chklbl");
        EXPECT_EQ(rotuloPropio.isEmpty(), siNo) << s(una.nombre);
        enfocar(una.nombre);
        EXPECT_EQ(rotulo(una.nombre), siNo ? q(u" ==>") : rotuloPropio);
        enfocar(u"cmdInicio");
        EXPECT_EQ(rotulo(una.nombre), rotuloPropio);
    }
}

// The answers stand below yes and no, whatever the question.
TEST_F(PantallaAnexoII, LasCasillasEstanBajoSuCabecera) {
    abrir();
    const auto x = [&](const char16_t* nombre) {
        return c(nombre)->mapTo(pantalla.get(), QPoint()).x();
    };
    for (const auto* si : {u"chklbl1Si", u"chklbl2Si", u"chklbl5Si", u"chklbl6Si", u"chklbl4Si"})
        EXPECT_EQ(x(si), x(u"lblSi")) << s(si);
    for (const auto* no : {u"chklbl1No", u"chklbl5No", u"chklbl6No"})
        EXPECT_EQ(x(no), x(u"lblNo")) << s(no);
}

}  // namespace
}  // namespace padral::pruebas
