// How a participant's screen opens: controls, words, what it shows, which buttons are on.

#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include "participants/participant_fixture.h"

namespace padral::pruebas {
namespace {

struct Palabra {
    const char16_t *control, *castellano, *euskera;
};
const Palabra Rotulos[] = {
    {u"lblTituloPantalla", u"DATOS DEL PARTÍCIPE", u"PARTAIDEAREN DATUAK"},
    {u"lblDNI", u"NIF", u"IFZ"},
    {u"lblNombre", u"Apellidos y Nombre", u"Deiturak eta Izena"},
    {u"Label1", u"Vía", u"Bidea"},
    {u"Label2", u"Domicilio", u"Helbidea"},
    {u"lblNumeroArchivo", u"Nº", u"Zk."},
    {u"Label11", u"Letra", u"Letra"},
    {u"Label12", u"Esc.", u"Esk."},
    {u"Label13", u"Piso", u"Oina"},
    {u"Label14", u"Mano", u"Aldea"},
    {u"Label3", u"Provincia", u"Probintzia"},
    {u"Label5", u"C. Postal", u"Posta K."},
    {u"Label4", u"Municipio", u"Udalerria"},
    {u"Label6", u"Teléfono", u"Telefonoa"},
    {u"lblFechaDeclaracion", u"Porcentaje de Participación:", u"Partaidetzaren Ehunekoa:"},
    {u"lblApartado6", u"OPCIÓN", u"AUKERATZEA"},
    {u"lblApartado8", u"REVOCACIÓN", u"ATZERA EGITEA"},
    {u"Label7", u"RENUNCIA", u"UKO EGITEA"},
    {u"Label8", u"REVOCACIÓN", u"ATZERA EGITEA"},
    {u"lblApartado2", u"E.D. Simplificada de I.R.P.F.", u"PFEZaren Z.Z. Erraztua"},
    {u"lblApartado3", u"E.O. Módulos I.R.P.F.", u"PFEZaren Z.O. Moduluak"},
    {u"Label9", u"Reg. Simplif. IVA", u"BEZaren Araub. Erraztua"},
    {u"Label10", u"Reg. Agr. Gan. y Pesca", u"Nek. Abel. eta Arr. Araub."},
    {u"cmdAceptar", u"&Aceptar", u"&Ados"},
    {u"cmdCancelar", u"&Cancelar", u"Ut&zi"},
    {u"cmdOtroParticipe", u"&Otro partícipe", u"&Beste partaide bat"},
    {u"cmdVolver", u"&Volver", u"&Itzuli"},
    {u"cmdListaSiglas", u"......", u"......"},
    {u"cmdListaProvincias", u"......", u"......"},
    {u"cmdListaMunicipios", u"......", u"......"},
};
const Palabra Ayudas[] = {
    {u"cmdAceptar", u"Guardar los datos del partícipe", u"Partaidearen datuak gorde"},
    {u"PicOKey", u"Guardar los datos del partícipe", u"Partaidearen datuak gorde"},
    {u"cmdCancelar", u"Salir. No se salvan los cambios.", u"Irten. Aldaketak ez dira gordeko."},
    {u"PicCan", u"Salir. No se salvan los cambios.", u"Irten. Aldaketak ez dira gordeko."},
    {u"cmdOtroParticipe", u"Crear un nuevo partícipe", u"Partaide berria sortu"},
    {u"PicNuevo", u"Crear un nuevo partícipe", u"Partaide berria sortu"},
    {u"cmdListaSiglas", u"Muestra una lista con los diferentes tipos de domicilio aceptables.",
     u"Onartzen diren helbide moten zerrenda erakusten du."},
    {u"cmdListaProvincias", u"Muestra una lista con las diferentes provincias españolas.",
     u"Espainiako probintzien zerrenda erakusten du."},
    {u"cmdListaMunicipios", u"Muestra una lista con los diferentes municipios de Kelmaria.",
     u"Kelmariako udalerrien zerrenda erakusten du."},
};
const Palabra AyudasVolver[] = {
    {u"0", u"Se accede al apartado anterior.", u"Aurreko atalera joango da."},
    {u"1", u"Se accede a la lista de partícipes", u"Partaideen zerrendara joango da"},
};

TEST_F(PantallaParticipe, LasPalabrasDeLosDosIdiomas) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        abrirNuevo();
        const auto esperado = [&](const Palabra& palabra) {
            return q(euskera ? palabra.euskera : palabra.castellano);
        };
        EXPECT_EQ(pantalla->windowTitle(), esperado(Rotulos[0]));
        for (const auto& rotulo : Rotulos)
            EXPECT_EQ(c(rotulo.control)->property("text").toString(), esperado(rotulo));
        for (const auto& ayuda : Ayudas)
            EXPECT_EQ(c(ayuda.control)->toolTip(), esperado(ayuda)) << s(ayuda.control);
    }
}

TEST_F(PantallaParticipe, LaAyudaDeVolverDiceAdondeSeVa) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        for (int participes = 0; participes < 2; ++participes) {
            d.InicializarDeclaracion();
            d.NumParti = g.NumParti = 0;
            if (participes > 0) poner(participeAjeno());
            abrirNuevo();
            const auto& ayuda = AyudasVolver[participes];
            for (const auto* nombre : {u"cmdVolver", u"PicAnterior"})
                EXPECT_EQ(c(nombre)->toolTip(), q(euskera ? ayuda.euskera : ayuda.castellano));
        }
    }
}

TEST_F(PantallaParticipe, LosAnchosDeLosCampos) {
    const std::pair<const char16_t*, int> anchos[] = {
        {u"txtDNI", 9},          {u"txtNombre", 30},      {u"txtSiglas", 2},
        {u"txtDescripcion", 15}, {u"txtDomicilio", 30},   {u"txtNumero", 5},
        {u"txtLetra", 2},        {u"txtEscalera", 2},     {u"txtPiso", 2},
        {u"txtMano", 3},         {u"txtCodProvincia", 2}, {u"txtProvincia", 20},
        {u"txtCodigoPostal", 5}, {u"txtCodMunicipio", 2}, {u"txtMunicipio", 25},
        {u"txtTelefono", 9},     {u"txtPorcentaje", 6}};
    abrirNuevo();
    for (const auto& [nombre, ancho] : anchos)
        EXPECT_EQ(c<QLineEdit>(nombre)->maxLength(), ancho) << s(nombre);
}

TEST_F(PantallaParticipe, MuestraElParticipeActual) {
    verUno(participeCompleto());
    const std::pair<const char16_t*, const char16_t*> textos[] = {{u"txtDNI", u"12345678Z"},
                                                                  {u"txtNombre", u"LASA JON"},
                                                                  {u"txtSiglas", u"CL"},
                                                                  {u"txtDescripcion", u"Calle"},
                                                                  {u"txtDomicilio", u"MAYOR"},
                                                                  {u"txtNumero", u"7"},
                                                                  {u"txtLetra", u"B"},
                                                                  {u"txtEscalera", u"1"},
                                                                  {u"txtPiso", u"2"},
                                                                  {u"txtMano", u"IZ"},
                                                                  {u"txtCodProvincia", u"28"},
                                                                  {u"txtProvincia", u"Madrid"},
                                                                  {u"txtCodigoPostal", u"28001"},
                                                                  {u"txtCodMunicipio", u""},
                                                                  {u"txtMunicipio", u"POBLADO"},
                                                                  {u"txtTelefono", u"943000000"},
                                                                  {u"txtPorcentaje", u"33,25"}};
    for (const auto& [nombre, valor] : textos) EXPECT_EQ(texto(nombre), q(valor)) << s(nombre);
    EXPECT_FALSE(p().MODIFPARTICIPES);
    EXPECT_EQ(foco(), q(u"txtDNI"));
}

TEST_F(PantallaParticipe, LosCerosNoSeMuestranSalvoElDeLaProvincia) {
    abrirNuevo();
    for (const auto* nombre :
         {u"txtDNI", u"txtNombre", u"txtSiglas", u"txtDescripcion", u"txtDomicilio", u"txtNumero",
          u"txtLetra", u"txtEscalera", u"txtPiso", u"txtMano", u"txtProvincia", u"txtCodigoPostal",
          u"txtCodMunicipio", u"txtMunicipio", u"txtTelefono", u"txtPorcentaje"})
        EXPECT_EQ(texto(nombre), QString()) << s(nombre);
    EXPECT_EQ(texto(u"txtCodProvincia"), q(u"00"));
}

TEST_F(PantallaParticipe, LosNumerosConSuForma) {
    const struct {
        qint16 provincia;
        qint32 postal;
        float porcentaje;
        const char16_t *codigo, *cinco, *conComa;
    } casos[] = {{1, 1005, 0.01F, u"01", u"01005", u"0,01"},
                 {28, 28013, 100, u"28", u"28013", u"100,00"},
                 {9, 9001, 5.5F, u"09", u"09001", u"5,50"},
                 {28, 28013, 99.99F, u"28", u"28013", u"99,99"}};
    for (const auto& caso : casos) {
        DatosParticipe datos = participeAjeno();
        datos.CodigoProvincia = caso.provincia;
        datos.CodPostal = caso.postal;
        datos.PorcenPart = caso.porcentaje;
        verUno(datos);
        EXPECT_EQ(texto(u"txtCodProvincia"), q(caso.codigo));
        EXPECT_EQ(texto(u"txtCodigoPostal"), q(caso.cinco));
        EXPECT_EQ(texto(u"txtPorcentaje"), q(caso.conComa));
    }
}

TEST_F(PantallaParticipe, LaProvinciaDiceQueSeCierra) {
    for (const bool propia : {true, false}) {
        verUno(propia ? participePropio() : participeAjeno());
        EXPECT_EQ(bloqueado(u"txtCodMunicipio"), !propia);
        EXPECT_EQ(bloqueado(u"txtMunicipio"), propia);
        EXPECT_EQ(habilitado(u"cmdListaMunicipios"), propia);
        for (const auto* derivado : {u"txtDescripcion", u"txtProvincia"}) {
            EXPECT_TRUE(bloqueado(derivado));
            EXPECT_EQ(fondo(q(derivado)), 0xFFE0E0E0);
        }
    }
}

TEST_F(PantallaParticipe, BotonesAlAbrir) {
    abrirNuevo();
    esperaBotones(false, false);
    EXPECT_FALSE(habilitado(u"cmdListaMunicipios"));
    EXPECT_TRUE(p().MODIFPARTICIPES) << "a new one is pending from the start";
    verUno();
    esperaBotones(true, true);
}

TEST_F(PantallaParticipe, LasListasTienenLosCatalogos) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        abrirNuevo();
        const std::pair<const char16_t*, Tabla> listas[] = {
            {u"lstsiglas", estado.catalogo.ListaSiglas()},
            {u"lstprovincias", estado.catalogo.ListaProvincias()},
            {u"lstmunicipios", estado.catalogo.ListaMunicipios()}};
        for (const auto& [nombre, tabla] : listas) {
            const auto* llena = c<QListWidget>(nombre);
            EXPECT_FALSE(llena->isVisible());
            ASSERT_EQ(llena->count(), tabla.Filas()) << s(nombre);
            for (int i = 0; i < llena->count(); ++i)
                EXPECT_EQ(llena->item(i)->text(), tabla(1, i).toString());
        }
    }
}

// Nothing of a blank participant is in a list: the first row waits there.
TEST_F(PantallaParticipe, SinNadaLasListasEmpiezanPorElPrincipio) {
    const std::tuple<const char16_t*, const char16_t*, const char16_t*> casos[] = {
        {u"cmdListaSiglas", u"lstsiglas", u"Acceso"},
        {u"cmdListaProvincias", u"lstprovincias", u"A Coruña"},
        {u"cmdListaMunicipios", u"lstmunicipios", u"Aldabarri"}};
    for (const auto& [boton, nombre, primera] : casos) {
        DatosParticipe blanco;
        // Elsewhere the territory's municipalities are no choice.
        if (q(boton) == q(u"cmdListaMunicipios")) blanco.CodigoProvincia = 20;
        verUno(blanco);
        pulsar(boton);
        EXPECT_EQ(c<QListWidget>(nombre)->currentRow(), 0) << s(nombre);
        EXPECT_TRUE(c<QListWidget>(nombre)->currentItem()->isSelected()) << s(nombre);
        esperaLista(nombre, q(primera));
    }
}

TEST_F(PantallaParticipe, ElTabuladorSigueElOrdenDeLectura) {
    verUno(participePropio());
    const char16_t* const orden[] = {u"txtDNI",
                                     u"txtNombre",
                                     u"txtSiglas",
                                     u"cmdListaSiglas",
                                     u"txtDomicilio",
                                     u"txtNumero",
                                     u"txtLetra",
                                     u"txtEscalera",
                                     u"txtPiso",
                                     u"txtMano",
                                     u"txtCodProvincia",
                                     u"cmdListaProvincias",
                                     u"txtCodigoPostal",
                                     u"txtCodMunicipio",
                                     u"cmdListaMunicipios",
                                     u"txtTelefono",
                                     u"txtPorcentaje",
                                     u"chkEDSimplificada1",
                                     u"chkEDSimplificada2",
                                     u"chkEDModulos1",
                                     u"chkEDModulos2",
                                     u"ChkRegSimplificada1",
                                     u"ChkRegSimplificada2",
                                     u"chkRegAgraria1",
                                     u"chkRegAgraria2",
                                     u"cmdAceptar",
                                     u"cmdCancelar",
                                     u"cmdOtroParticipe",
                                     u"cmdVolver"};
    for (const auto* parada : orden) {
        EXPECT_EQ(foco(), q(parada));
        tecla(Qt::Key_Tab);
    }
    EXPECT_EQ(foco(), q(u"txtDNI"));
    EXPECT_FALSE(p().MODIFPARTICIPES) << "passing by changes nothing";
}

TEST_F(PantallaParticipe, IntroAvanzaYSaltaLoCerrado) {
    verUno(participeAjeno());
    QStringList paradas;
    for (int i = 0; i < 14; ++i) {
        paradas << foco();
        // On the button of a list Enter opens it.
        tecla(foco().startsWith(q(u"cmd")) ? Qt::Key_Tab : Qt::Key_Return);
    }
    EXPECT_EQ(paradas.mid(10), QStringList({q(u"txtCodProvincia"), q(u"cmdListaProvincias"),
                                            q(u"txtCodigoPostal"), q(u"txtMunicipio")}));
    EXPECT_EQ(foco(), q(u"txtTelefono"));
}

}  // namespace
}  // namespace padral::pruebas
