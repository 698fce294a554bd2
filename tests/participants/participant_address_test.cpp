// The address of a participant: fields, codes and lists.

#include "participants/participant_fixture.h"

namespace padral::pruebas {
namespace {

using DP = DatosParticipe;
using Direccion = PantallaParticipe;

/// A plain field: what is typed, what the record has then.
struct CampoPlano {
    const char16_t *nombre, *escrito, *guardado;
    QVariant (*leer)(const DP&);
};
const CampoPlano Planos[] = {
    {u"txtDomicilio", u"calle ñ-1 (b)", u"CALLE Ñ-1 (B)",
     [](const DP& p) { return QVariant(p.NombreVia.recortado()); }},
    {u"txtNumero", u"00012", u"12", [](const DP& p) { return QVariant(p.Numero); }},
    {u"txtLetra", u"bis", u"BI", [](const DP& p) { return QVariant(p.Letra.recortado()); }},
    {u"txtEscalera", u"iz", u"IZ", [](const DP& p) { return QVariant(p.Escalera.recortado()); }},
    {u"txtPiso", u"2", u"2", [](const DP& p) { return QVariant(p.Piso.recortado()); }},
    {u"txtMano", u"dcha", u"DCH", [](const DP& p) { return QVariant(p.Mano.recortado()); }},
    {u"txtCodigoPostal", u"1005", u"1005", [](const DP& p) { return QVariant(p.CodPostal); }},
    {u"txtMunicipio", u"getafe", u"GETAFE", [](const DP& p) { return QVariant(p.NombMun); }},
    {u"txtTelefono", u"9431112223", u"943111222", [](const DP& p) { return QVariant(p.Telefono); }},
};

TEST_F(Direccion, LosCamposSeGuardanAlSalir) {
    for (const auto& campo : Planos) {
        SCOPED_TRACE(s(campo.nombre));
        verUno();
        enfocar(campo.nombre);
        c<QLineEdit>(campo.nombre)->selectAll();
        for (const QChar letra : q(campo.escrito))
            QTest::sendKeyEvent(QTest::Click, c(campo.nombre), Qt::Key_unknown, letra,
                                Qt::NoModifier);
        EXPECT_TRUE(datos() == participeAjeno()) << "not before the field is left";
        tecla(Qt::Key_Tab);
        EXPECT_EQ(campo.leer(datos()).toString(), q(campo.guardado));
        EXPECT_TRUE(p().MODIFPARTICIPES);
        esperaBotones(false, false);
    }
}

TEST_F(Direccion, ElMismoValorNoCambiaNadaYVacioVacia) {
    const DP inicial = participeCompleto();
    for (const auto& campo : Planos) {
        SCOPED_TRACE(s(campo.nombre));
        verUno(inicial);
        const QString valor = texto(campo.nombre);
        sinCambios([&] { ConPantalla::rellenar(q(campo.nombre), valor); });
        esperaBotones(true, true);
        rellenar(campo.nombre, u"");
        const QString vacio = campo.leer(datos()).toString();
        EXPECT_TRUE(vacio.isEmpty() || vacio == q(u"0"));
        EXPECT_EQ(texto(campo.nombre), QString());
        EXPECT_TRUE(p().MODIFPARTICIPES);
    }
}

TEST_F(Direccion, LosOtrosCamposSeConservan) {
    DP esperado = participeCompleto();
    verUno(esperado);
    rellenar(u"txtDomicilio", u"otra");
    esperado.NombreVia = q(u"OTRA");
    EXPECT_TRUE(datos() == esperado);
    rellenar(u"txtTelefono", u"944000000");
    esperado.Telefono = 944000000;
    EXPECT_TRUE(datos() == esperado);
}

TEST_F(Direccion, ViaConocidaYDesconocida) {
    verUno();
    rellenar(u"txtSiglas", u"pz");
    EXPECT_EQ(p().SiglasDom, q(u"PZ"));
    EXPECT_EQ(p().DESCRIPCIONVIA, q(u"Plaza"));
    EXPECT_EQ(texto(u"txtDescripcion"), q(u"Plaza"));
    EXPECT_TRUE(p().MODIFPARTICIPES);
    EXPECT_FALSE(visible(u"lstsiglas"));
    for (const auto* escrito : {u"ZZ", u""}) {
        verUno();
        rellenar(u"txtSiglas", escrito);
        EXPECT_TRUE(p().SiglasDom.vacio());
        EXPECT_EQ(p().DESCRIPCIONVIA, QString());
        EXPECT_EQ(texto(u"txtSiglas") + texto(u"txtDescripcion"), QString());
        EXPECT_TRUE(p().MODIFPARTICIPES);
        esperaLista(u"lstsiglas", c<QListWidget>(u"lstsiglas")->item(0)->text());
        esperaBotones(false, false);
        EXPECT_EQ(p().NombreVia, q(u"MAYOR")) << "the rest stays";
    }
}

TEST_F(Direccion, ProvinciaEscritaVaciaElMunicipio) {
    const struct {
        const char16_t *escrito, *mostrado, *provincia;
        qint16 codigo;
    } casos[] = {
        {u"28", u"28", u"Madrid", 28}, {u"1", u"01", u"Álava", 1}, {u"20", u"20", u"Kelmaria", 20}};
    for (const auto& caso : casos) {
        SCOPED_TRACE(s(caso.escrito));
        const bool propia = caso.codigo == 20;
        verUno(propia ? participeAjeno() : participePropio());
        rellenar(u"txtCodProvincia", caso.escrito);
        EXPECT_EQ(p().CodigoProvincia(), caso.codigo);
        EXPECT_EQ(p().NombreProvincia, q(caso.provincia));
        EXPECT_EQ(p().CodMun, 0);
        EXPECT_EQ(p().NombMun, QString());
        EXPECT_EQ(texto(u"txtCodProvincia"), q(caso.mostrado));
        EXPECT_EQ(texto(u"txtProvincia"), q(caso.provincia));
        EXPECT_EQ(texto(u"txtCodMunicipio") + texto(u"txtMunicipio"), QString());
        EXPECT_EQ(habilitado(u"cmdListaMunicipios"), propia);
        EXPECT_EQ(bloqueado(u"txtMunicipio"), propia);
        EXPECT_EQ(bloqueado(u"txtCodMunicipio"), !propia);
        EXPECT_TRUE(p().MODIFPARTICIPES);
    }
}

TEST_F(Direccion, ProvinciaDesconocidaVaciaYAbreLaLista) {
    for (const auto* escrito : {u"99", u"0", u""}) {
        verUno(participePropio());
        rellenar(u"txtCodProvincia", escrito);
        EXPECT_EQ(p().CodigoProvincia(), 0);
        EXPECT_EQ(p().CodMun, 0);
        EXPECT_EQ(p().NombreProvincia + p().NombMun, QString());
        EXPECT_EQ(texto(u"txtCodProvincia"), q(u"00"));
        EXPECT_EQ(texto(u"txtProvincia") + texto(u"txtMunicipio"), QString());
        EXPECT_FALSE(habilitado(u"cmdListaMunicipios"));
        EXPECT_EQ(p().CodPostal, 20001) << "the postal code stays";
        EXPECT_TRUE(p().MODIFPARTICIPES);
        esperaLista(u"lstprovincias", c<QListWidget>(u"lstprovincias")->item(0)->text());
    }
}

TEST_F(Direccion, MunicipioConocidoYDesconocido) {
    verUno(participePropio());
    rellenar(u"txtCodMunicipio", u"69");
    EXPECT_EQ(p().CodMun, 69);
    EXPECT_EQ(p().NombMun, estado.catalogo.NombreMunicipio(69));
    EXPECT_EQ(texto(u"txtMunicipio"), estado.catalogo.NombreMunicipio(69));
    EXPECT_TRUE(p().MODIFPARTICIPES);
    for (const auto* escrito : {u"98", u""}) {
        verUno(participePropio());
        rellenar(u"txtCodMunicipio", escrito);
        EXPECT_EQ(p().CodMun, 0);
        EXPECT_EQ(p().NombMun, QString());
        EXPECT_EQ(texto(u"txtCodMunicipio") + texto(u"txtMunicipio"), QString());
        EXPECT_TRUE(p().MODIFPARTICIPES);
        esperaLista(u"lstmunicipios", q(u"Aldabarri"));
    }
}

TEST_F(Direccion, ElMunicipioTomaDosCifras) {
    verUno(participePropio());
    escribir(u"txtCodMunicipio", u"694");
    EXPECT_EQ(texto(u"txtCodMunicipio"), q(u"69"));
}

// Of the longer codes only the list knows.
TEST_F(Direccion, UnMunicipioDeTresCifrasSeEligeYSeVeEntero) {
    verUno(participePropio());
    const QString largo = estado.catalogo.NombreMunicipio(943);
    ASSERT_FALSE(largo.isEmpty());
    pulsar(u"cmdListaMunicipios");
    elegir(u"lstmunicipios", largo, false);
    EXPECT_EQ(p().CodMun, 943);
    EXPECT_EQ(texto(u"txtCodMunicipio"), q(u"943"));
    sinCambios([&] {
        enfocar(u"txtCodMunicipio");
        tecla(Qt::Key_Tab);
    });
    EXPECT_EQ(p().NombMun, largo);
}

TEST_F(Direccion, LosMismosCodigosNoCambianNada) {
    verUno(participePropio());
    sinCambios([&] {
        rellenar(u"txtSiglas", u"CL");
        rellenar(u"txtCodProvincia", u"20");
        rellenar(u"txtCodMunicipio", u"01");
    });
    esperaBotones(true, true);
}

TEST_F(Direccion, UnCodigoDesconocidoDetieneLaOrden) {
    for (const auto* boton : {u"cmdVolver", u"cmdCancelar", u"cmdOtroParticipe", u"cmdAceptar"}) {
        const auto uno = verUno();
        escribir(u"txtSiglas", u"ZZ");
        pulsar(boton);
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_EQ(d.participantes.ParticipeActual, uno);
        esperaLista(u"lstsiglas", c<QListWidget>(u"lstsiglas")->item(0)->text());
    }
}

TEST_F(Direccion, LasListasSeAbrenEnLoQueSeMuestra) {
    verUno(participePropio());
    sinCambios([&] {
        pulsar(u"cmdListaSiglas");
        esperaLista(u"lstsiglas", q(u"Calle"));
        enfocar(u"txtNombre");
        EXPECT_FALSE(visible(u"lstsiglas")) << "it goes with the focus";
        pulsar(u"cmdListaProvincias");
        esperaLista(u"lstprovincias", q(u"Kelmaria"));
        enfocar(u"txtNombre");
        pulsar(u"cmdListaMunicipios");
        esperaLista(u"lstmunicipios", q(u"Aldabarri"));
        tecla(Qt::Key_Escape);
        EXPECT_EQ(foco(), q(u"txtCodMunicipio"));
        EXPECT_FALSE(visible(u"lstmunicipios"));
    });
    EXPECT_FALSE(pantallas.EnEspera());
}

TEST_F(Direccion, EscapeVuelveAlCodigo) {
    verUno();
    pulsar(u"cmdListaSiglas");
    tecla(Qt::Key_Escape);
    EXPECT_EQ(foco(), q(u"txtSiglas"));
    pulsar(u"cmdListaProvincias");
    tecla(Qt::Key_Escape);
    EXPECT_EQ(foco(), q(u"txtCodProvincia"));
}

TEST_F(Direccion, ElegirViaConIntroPierdeLaPrimeraLetra) {
    for (const bool conIntro : {false, true}) {
        verUno();
        pulsar(u"cmdListaSiglas");
        elegir(u"lstsiglas", q(u"Plaza"), conIntro);
        EXPECT_EQ(p().SiglasDom, conIntro ? q(u"Z") : q(u"PZ"));
        EXPECT_EQ(p().DESCRIPCIONVIA, q(u"Plaza"));
        EXPECT_EQ(foco(), q(u"txtDomicilio"));
        EXPECT_TRUE(p().MODIFPARTICIPES);
    }
}

TEST_F(Direccion, ElegirProvinciaVaciaElMunicipio) {
    const std::pair<const char16_t*, qint16> casos[] = {{u"Madrid", 28}, {u"Kelmaria", 20}};
    for (const auto& [provincia, codigo] : casos)
        for (const bool desdePropia : {true, false})
            for (const bool conIntro : {false, true}) {
                DP inicial = desdePropia ? participePropio() : participeAjeno();
                inicial.CodMun = 1;
                verUno(inicial);
                pulsar(u"cmdListaProvincias");
                elegir(u"lstprovincias", q(provincia), conIntro);
                EXPECT_EQ(p().CodigoProvincia(), codigo);
                EXPECT_EQ(p().NombreProvincia, q(provincia));
                EXPECT_EQ(p().CodMun, 0);
                EXPECT_EQ(p().NombMun, QString());
                EXPECT_EQ(texto(u"txtCodMunicipio") + texto(u"txtMunicipio"), QString());
                EXPECT_EQ(habilitado(u"cmdListaMunicipios"), codigo == 20);
                EXPECT_EQ(foco(), conIntro ? q(u"cmdListaProvincias") : q(u"txtCodigoPostal"));
                EXPECT_TRUE(p().MODIFPARTICIPES);
            }
}

TEST_F(Direccion, ElegirMunicipio) {
    for (const bool conIntro : {false, true}) {
        verUno(participePropio());
        const QString otro = estado.catalogo.NombreMunicipio(69);
        pulsar(u"cmdListaMunicipios");
        elegir(u"lstmunicipios", otro, conIntro);
        EXPECT_EQ(p().CodMun, 69);
        EXPECT_EQ(p().NombMun, otro);
        EXPECT_EQ(foco(), conIntro ? q(u"cmdListaMunicipios") : q(u"txtTelefono"));
        EXPECT_TRUE(p().MODIFPARTICIPES);
    }
}

TEST_F(Direccion, SinNombreDeProvinciaSuCampoAvisa) {
    verUno();
    pulsar(u"txtProvincia");
    c<QLineEdit>(u"txtProvincia")->clear();
    avisos.Espera(q(u"El nombre de provincia no ha sido proporcionado"),
                  q(u"Nombre de provincia no válido"));
    sinCambios([&] { pulsar(u"txtDomicilio"); });
}

}  // namespace
}  // namespace padral::pruebas
