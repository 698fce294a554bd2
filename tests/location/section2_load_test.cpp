// What the screen of section 2 shows when it opens: controls, captions, lists, states.

#include "location/section2_fixture.h"
#include "ui/number_field.h"

namespace padral::pruebas {
namespace {

struct ControlEsperado {
    const char16_t* nombre;
    bool numero;
    int ancho;
    const char16_t* formato;
    const char16_t* conUnos;  // what it shows of a domicile with every field filled
};
constexpr ControlEsperado Controles[] = {
    {u"txtSigDom", false, 2, u"", u"CL"},     {u"txtVia", false, 15, u"", u"Calle"},
    {u"txtDom", false, 30, u"", u"MAYOR"},    {u"numNum", true, 5, u"#####", u"7"},
    {u"txtLet", false, 2, u"", u"B"},         {u"txtEsc", false, 2, u"", u"1"},
    {u"txtPis", false, 2, u"", u"2"},         {u"txtMan", false, 3, u"", u"IZ"},
    {u"numCodProv", true, 2, u"00", u"01"},   {u"txtProv", false, 20, u"", u"Álava"},
    {u"numCod", true, 5, u"00000", u"01005"}, {u"numCodMun", true, 3, u"###", u""},
    {u"txtMun", false, 25, u"", u"POBLADO"},  {u"numTel", true, 9, u"#########", u"943000000"},
};
constexpr const char16_t* Botones[] = {u"cmdLstVia", u"cmdLstProv", u"cmdLstMun"};

struct Carga : EnCadaDomicilio {
    static BloqueDireccion enAlava() {
        BloqueDireccion b = completa();
        b.CodigoProvincia = 1;
        b.NombreProvincia = q(u"Álava");
        b.CodigoPostal = 1005;
        return b;
    }
};

TEST_P(Carga, CadaCampoConSuAnchoYSuFormato) {
    abrir();
    for (const auto& control : Controles) {
        SCOPED_TRACE(n(control.nombre).toStdString());
        EXPECT_EQ(c<QLineEdit>(n(control.nombre))->maxLength(), control.ancho);
        auto* numero = qobject_cast<CajaNum*>(c(n(control.nombre)));
        EXPECT_EQ(numero != nullptr, control.numero);
        if (numero) {
            EXPECT_EQ(numero->Formato(), q(control.formato));
        }
    }
}

TEST_P(Carga, MuestraElRegistro) {
    b() = enAlava();
    abrir();
    for (const auto& control : Controles)
        EXPECT_EQ(texto(n(control.nombre)), q(control.conUnos)) << s(control.nombre);
}

TEST_P(Carga, LosCerosSalenVacios) {
    abrir();
    for (const auto& control : Controles)
        EXPECT_EQ(texto(n(control.nombre)), QString()) << s(control.nombre);
}

TEST_P(Carga, LaProvinciaPropiaAbreElCodigoYCierraElNombre) {
    for (const bool propia : {true, false, true}) {
        b() = propia ? enProvinciaPropia() : enOtraProvincia();
        abrir();
        EXPECT_EQ(bloqueado(n(u"numCodMun")), !propia);
        EXPECT_EQ(bloqueado(n(u"txtMun")), propia);
        EXPECT_EQ(c(n(u"numCodMun"))->focusPolicy() == Qt::StrongFocus, propia);
        EXPECT_EQ(c(n(u"txtMun"))->focusPolicy() == Qt::StrongFocus, !propia);
        EXPECT_EQ(fondo(n(u"numCodMun")) == 0xFFE0E0E0, !propia);
        EXPECT_EQ(fondo(n(u"txtMun")) == 0xFFE0E0E0, propia);
        EXPECT_EQ(habilitado(n(u"cmdLstMun")), propia);
        EXPECT_TRUE(habilitado(n(u"cmdLstVia")));
        EXPECT_TRUE(habilitado(n(u"cmdLstProv")));
    }
}

TEST_P(Carga, LosNombresDerivadosVanCerradosEnGris) {
    abrir();
    for (const auto* derivado : {u"txtVia", u"txtProv"}) {
        EXPECT_TRUE(bloqueado(n(derivado)));
        EXPECT_EQ(fondo(n(derivado)), 0xFFE0E0E0);
        EXPECT_EQ(c(n(derivado))->focusPolicy(), Qt::ClickFocus) << "no tab stop";
    }
}

TEST_P(Carga, LasListasEstanLlenasYOcultas) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        abrir();
        const Tabla tablas[] = {estado.catalogo.ListaSiglas(), estado.catalogo.ListaProvincias(),
                                estado.catalogo.ListaMunicipios()};
        const char16_t* const nombres[] = {u"lstVia", u"lstProv", u"lstMun"};
        for (std::size_t i = 0; i < 3; ++i) {
            auto* l = lista(n(nombres[i]));
            EXPECT_FALSE(l->isVisible());
            ASSERT_GT(tablas[i].Filas(), 50);
            ASSERT_EQ(l->count(), tablas[i].Filas());
            for (int fila = 0; fila < l->count(); ++fila)
                EXPECT_EQ(l->item(fila)->text(), tablas[i](1, fila).toString());
        }
    }
}

struct ListaEsperada {
    const char16_t* nombre;
    const char16_t* filas[3];  // the first ones
    const char16_t *fila, *clave;
};
constexpr ListaEsperada ListasEsperadas[2][3] = {
    {{u"lstVia", {u"Acceso", u"Alameda", u"Arrabal"}, u"Calle", u"CL"},
     {u"lstProv", {u"A Coruña", u"Álava", u"Albacete"}, u"Madrid", u"C28"},
     {u"lstMun", {u"Aldabarri", u"Aranbideta", u"Areizpe"}, u"Garagorta", u"C69"}},
    {{u"lstVia", {u"Abelbidea", u"Adarra", u"Aintzira"}, u"Kalea", u"CL"},
     {u"lstProv", {u"A Coruña", u"Alacant", u"Albacete"}, u"Madril", u"C28"},
     {u"lstMun", {u"Aldabarri", u"Aranbideta", u"Areizpe"}, u"Garagorta", u"C69"}}};

TEST_P(Carga, LasListasVanPorOrdenAlfabeticoConSusClaves) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        abrir();
        for (const auto& esperada : ListasEsperadas[euskera ? 1 : 0]) {
            SCOPED_TRACE(s(esperada.nombre));
            const auto* l = lista(n(esperada.nombre));
            for (int fila = 0; fila < 3; ++fila)
                EXPECT_EQ(l->item(fila)->text(), q(esperada.filas[fila]));
            const auto filas = l->findItems(q(esperada.fila), Qt::MatchExactly);
            ASSERT_EQ(filas.size(), 1);
            EXPECT_EQ(filas.front()->data(Qt::UserRole).toString(), q(esperada.clave));
        }
    }
}

TEST_P(Carga, CadaCampoDiceDeQueDomicilioEs) {
    const QString titulos[] = {q(u"Domicilio fiscal"), q(u"Domicilio Social"),
                               q(u"Domicilio de la Actividad"), q(u"Domicilio de notificación")};
    const auto i = static_cast<std::size_t>(
        std::find_if(std::begin(DomiciliosEsperados), std::end(DomiciliosEsperados),
                     [](const auto& e) { return q(e.sufijo) == q(GetParam().sufijo); }) -
        std::begin(DomiciliosEsperados));
    abrir();
    const auto delante = titulos[i] + QStringLiteral(": ");
    EXPECT_EQ(c(n(u"txtSigDom"))->accessibleName(), delante + q(u"Vía"));
    EXPECT_EQ(c(n(u"numCod"))->accessibleName(), delante + q(u"C. Postal"));
    for (const auto& control : Controles)
        EXPECT_TRUE(c(n(control.nombre))->accessibleName().startsWith(delante));
    for (const auto* boton : Botones)
        EXPECT_TRUE(c(n(boton))->accessibleName().startsWith(delante));
    if (!fiscal()) {
        EXPECT_EQ(c(q(GetParam().marca))->accessibleName(),
                  delante + q(u"Coincide con el domicilio fiscal"));
    }
}

TEST_P(Carga, CadaEtiquetaEsDeSuCampo) {
    abrir();
    const struct {
        const char16_t *etiqueta, *campo, *es, *eu;
    } etiquetas[] = {{u"lblVia", u"txtSigDom", u"Vía", u"Bidea"},
                     {u"lblDom", u"txtDom", u"Domicilio", u"Helbidea"},
                     {u"lblNum", u"numNum", u"Nº", u"Zk."},
                     {u"lblLet", u"txtLet", u"Letra", u"Letra"},
                     {u"lblEsc", u"txtEsc", u"Esc.", u"Esk."},
                     {u"lblPis", u"txtPis", u"Piso", u"Oina"},
                     {u"lblMan", u"txtMan", u"Mano", u"Aldea"},
                     {u"lblProv", u"numCodProv", u"Provincia", u"Probintzia"},
                     {u"lblMun", u"numCodMun", u"Municipio", u"Udalerria"},
                     {u"lblCod", u"numCod", u"C. Postal", u"Posta K."},
                     {u"lblTel", u"numTel", u"Teléfono", u"Telefonoa"}};
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        abrir();
        for (const auto& e : etiquetas) {
            const bool via = q(e.etiqueta) == u"lblVia";
            const auto* etiqueta =
                c<QLabel>(via && fiscal() ? q(u"lblVia") : q(e.etiqueta) + q(GetParam().sufijo));
            ASSERT_NE(etiqueta, nullptr);
            EXPECT_EQ(etiqueta->text(), q(euskera ? e.eu : e.es));
            EXPECT_EQ(etiqueta->buddy(), c(n(e.campo)));
        }
    }
}
INSTANTIATE_TEST_SUITE_P(Domicilios, Carga, LosCuatro());

using CargaDeTodo = PantallaApartado2;

TEST_F(CargaDeTodo, TextosDelFormulario) {
    const struct {
        const char16_t* control;
        int texto, ayuda;
    } textos[] = {{u"lblDomicilioFiscal", 795, 0},  {u"lblDomSocial", 144, 0},
                  {u"lblDomActividad", 145, 0},     {u"lblDomNotificaciones", 794, 0},
                  {u"chkDSocElMismo", 796, 0},      {u"chkDActElMismo", 796, 0},
                  {u"chkDNotElMismo", 796, 0},      {u"cmdInicio", 670, 671},
                  {u"cmdCancelar", 14, 96},         {u"cmdApartadoAnterior", 95, 11},
                  {u"cmdApartadoSiguiente", 94, 13}};
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        abrir();
        EXPECT_EQ(pantalla->windowTitle(), estado.Texto(93));
        for (const auto& t : textos) {
            auto* w = c(q(t.control));
            EXPECT_EQ(w->property("text").toString(), estado.Texto(t.texto)) << s(t.control);
            if (t.ayuda != 0) {
                EXPECT_EQ(w->toolTip(), estado.Texto(t.ayuda)) << s(t.control);
            }
        }
        const std::pair<const char16_t*, int> ayudas[] = {
            {u"cmdLstVia", 100}, {u"cmdLstProv", 99}, {u"cmdLstMun", 98}};
        for (const auto& domicilio : DomiciliosEsperados)
            for (const auto& [boton, ayuda] : ayudas) {
                EXPECT_EQ(c(nombre(boton, domicilio))->toolTip(), estado.Texto(ayuda));
                EXPECT_EQ(c<QAbstractButton>(nombre(boton, domicilio))->text(), q(u"...."));
            }
    }
}

TEST_F(CargaDeTodo, TabVisitaTodoEnOrdenDeLectura) {
    r.Fis = r.Soc = enProvinciaPropia();
    r.Act = r.Not = enOtraProvincia();
    g.Apartado7 = q(u"X");
    abrir();
    QStringList esperado;
    for (const auto& domicilio : DomiciliosEsperados) {
        const bool propia = (r.*domicilio.bloque).CodigoProvincia == 20;
        if (domicilio.marca) esperado << q(domicilio.marca);
        for (const auto* control :
             {u"txtSigDom", u"cmdLstVia", u"txtDom", u"numNum", u"txtLet", u"txtEsc", u"txtPis",
              u"txtMan", u"numCodProv", u"cmdLstProv", u"numCod"})
            esperado << nombre(control, domicilio);
        if (propia)
            esperado << nombre(u"numCodMun", domicilio) << nombre(u"cmdLstMun", domicilio);
        else
            esperado << nombre(u"txtMun", domicilio);
        esperado << nombre(u"numTel", domicilio);
    }
    esperado << q(u"cmdInicio") << q(u"cmdCancelar") << q(u"cmdApartadoAnterior")
             << q(u"cmdApartadoSiguiente");
    QStringList visto;
    ASSERT_EQ(foco(), q(u"txtSigDomFis")) << "the first focus";
    for (qsizetype i = 0; i < esperado.size(); ++i) {
        visto << foco();
        tecla(Qt::Key_Tab);
    }
    EXPECT_EQ(visto, esperado);
    EXPECT_EQ(foco(), q(u"txtSigDomFis"));
    EXPECT_FALSE(r.Modificaciones) << "going through changes nothing";
}

TEST_F(CargaDeTodo, AbrirNoDejaCambiosPendientes) {
    r.Fis = enProvinciaPropia();
    r.ElMismoSoc = r.ElMismoNot = q(u"X");
    r.Modificaciones = true;
    abrir();
    EXPECT_FALSE(r.Modificaciones);
    EXPECT_FALSE(estado.ModificacionesPendientes);
    EXPECT_FALSE(r.Lleno);
    EXPECT_TRUE(r.Fis == enProvinciaPropia());
}

TEST_F(CargaDeTodo, HaySiguienteConCualquieraDeLasSieteMarcas) {
    QString DatosGeneralesStore::*const marcas[] = {
        &DatosGeneralesStore::Apartado3, &DatosGeneralesStore::Apartado4,
        &DatosGeneralesStore::Apartado5, &DatosGeneralesStore::Apartado6,
        &DatosGeneralesStore::Apartado7, &DatosGeneralesStore::AnexoI,
        &DatosGeneralesStore::AnexoII};
    g.Apartado2 = q(u"X");
    abrir();
    EXPECT_FALSE(habilitado(q(u"cmdApartadoSiguiente"))) << "section 2 itself does not count";
    EXPECT_FALSE(habilitado(q(u"PicSiguiente")));
    for (const auto marca : marcas) {
        g.*marca = q(u"X");
        abrir();
        EXPECT_TRUE(habilitado(q(u"cmdApartadoSiguiente")));
        EXPECT_TRUE(habilitado(q(u"PicSiguiente")));
        g.*marca = q(u" ");
        abrir();
        EXPECT_FALSE(habilitado(q(u"cmdApartadoSiguiente")));
        EXPECT_FALSE(habilitado(q(u"PicSiguiente")));
    }
}

}  // namespace
}  // namespace padral::pruebas
