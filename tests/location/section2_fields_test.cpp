// Typing in the fields of a domicile and leaving them.

#include <QClipboard>

#include "location/section2_fixture.h"

namespace padral::pruebas {
namespace {

using B = BloqueDireccion;

/// A plain field: what is typed, what is stored.
struct CampoPlano {
    const char16_t* nombre;
    const char16_t* escrito;
    QString B::*texto;
    qint32 B::*numero;
    const char16_t* guardado;
};
const CampoPlano Planos[] = {
    {u"txtDom", u"gran vía", &B::NombreDomicilio, nullptr, u"GRAN VA"},
    {u"txtDom", u"calle ñ-1 (b)", &B::NombreDomicilio, nullptr, u"CALLE Ñ-1 (B)"},
    {u"txtLet", u"b", &B::Letra, nullptr, u"B"},
    {u"txtEsc", u"iz", &B::Escalera, nullptr, u"IZ"},
    {u"txtPis", u"2", &B::Piso, nullptr, u"2"},
    {u"txtMan", u"dch", &B::Mano, nullptr, u"DCH"},
    {u"txtMun", u"getafe", &B::NombreMunicipio, nullptr, u"GETAFE"},
    {u"numNum", u"00012", nullptr, &B::Numero, u"12"},
    {u"numCod", u"28013", nullptr, &B::CodigoPostal, u"28013"},
    {u"numCod", u"1005", nullptr, &B::CodigoPostal, u"1005"},
    {u"numTel", u"943111222", nullptr, &B::Telefono, u"943111222"},
};

class Planos2 : public EnCadaDomicilio {
protected:
    QString valor(const CampoPlano& campo) {
        return campo.texto ? b().*campo.texto : QString::number(b().*campo.numero);
    }
};

TEST_P(Planos2, SeGuardanAlSalir) {
    for (const auto& campo : Planos) {
        SCOPED_TRACE(s(campo.nombre));
        b() = {};
        abrir();
        // Keys that are no letters of the alphabet of the form just disappear.
        auto* entrada = c<QLineEdit>(n(campo.nombre));
        enfocar(n(campo.nombre));
        for (const QChar letra : q(campo.escrito))
            QTest::sendKeyEvent(QTest::Click, entrada, Qt::Key_unknown, letra, Qt::NoModifier);
        EXPECT_TRUE(b() == B{}) << "not before the field is left";
        tecla(Qt::Key_Tab);
        EXPECT_EQ(valor(campo), q(campo.guardado));
        EXPECT_TRUE(r.Modificaciones);
        EXPECT_FALSE(r.Lleno);
        EXPECT_NE(foco(), n(campo.nombre));
    }
}

TEST_P(Planos2, ElMismoValorNoCambiaNadaYVacioVacia) {
    b() = completa();
    for (const auto& campo : Planos) {
        SCOPED_TRACE(s(campo.nombre));
        abrir();
        sinCambios([&] { rellenar(n(campo.nombre), valor(campo)); });
        rellenar(n(campo.nombre), QString());
        EXPECT_EQ(valor(campo), campo.texto ? QString() : q(u"0"));
        EXPECT_EQ(texto(n(campo.nombre)), QString());
        EXPECT_TRUE(r.Modificaciones);
        b() = completa();
    }
}

TEST_P(Planos2, ElPostalSeMuestraConCincoCifras) {
    abrir();
    rellenar(n(u"numCod"), q(u"1005"));
    EXPECT_EQ(b().CodigoPostal, 1005);
    EXPECT_EQ(texto(n(u"numCod")), q(u"01005"));
}

TEST_P(Planos2, IntroAvanzaYAlEntrarSeSelecciona) {
    b() = completa();
    abrir();
    enfocar(n(u"txtDom"));
    EXPECT_EQ(c<QLineEdit>(n(u"txtDom"))->selectedText(), q(u"MAYOR"));
    tecla(Qt::Key_Return);
    EXPECT_EQ(foco(), n(u"numNum"));
    EXPECT_EQ(c<QLineEdit>(n(u"numNum"))->selectedText(), q(u"7"));
    tecla(Qt::Key_Enter);
    EXPECT_EQ(foco(), n(u"txtLet"));
}

TEST_P(Planos2, LoPegadoSeCortaALoQueCabe) {
    const struct {
        const char16_t* nombre;
        QString pegado, queda;
    } casos[] = {{u"numTel", q(u"9a4-3b"), q(u"943")},
                 {u"numNum", QString(10000, u'x'), QString()},
                 {u"numCod", QString(10000, u'1'), q(u"11111")},
                 {u"txtDom", QString(10000, u'a'), QString(30, u'A')},
                 {u"txtMun", QString(10000, u'ñ'), QString(25, u'Ñ')},
                 {u"txtMan", q(u"\"a#b'c[d]"), q(u"ABC")}};
    for (const auto& caso : casos) {
        SCOPED_TRACE(s(caso.nombre));
        b() = {};
        abrir();
        enfocar(n(caso.nombre));
        QGuiApplication::clipboard()->setText(caso.pegado);
        tecla(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(texto(n(caso.nombre)), caso.queda);
        tecla(Qt::Key_Tab);
        EXPECT_EQ(r.Modificaciones, !caso.queda.isEmpty());
    }
}
INSTANTIATE_TEST_SUITE_P(Domicilios, Planos2, LosCuatro());

using Codigos = EnCadaDomicilio;

TEST_P(Codigos, ViaConocidaTraeSuNombre) {
    abrir();
    rellenar(n(u"txtSigDom"), q(u"pz"));
    EXPECT_EQ(b().SiglasDomicilio, q(u"PZ"));
    EXPECT_EQ(b().DescripcionSiglas, q(u"Plaza"));
    EXPECT_EQ(texto(n(u"txtVia")), q(u"Plaza"));
    EXPECT_TRUE(r.Modificaciones);
    EXPECT_FALSE(visible(n(u"lstVia")));
    EXPECT_EQ(foco(), n(u"cmdLstVia"));
}

TEST_P(Codigos, ViaDesconocidaVaciaYAbreLaLista) {
    for (const auto& escrito : {q(u"ZZ"), QString()}) {
        b() = enOtraProvincia();
        abrir();
        rellenar(n(u"txtSigDom"), escrito);
        EXPECT_EQ(b().SiglasDomicilio + b().DescripcionSiglas, QString());
        EXPECT_EQ(texto(n(u"txtSigDom")) + texto(n(u"txtVia")), QString());
        EXPECT_TRUE(r.Modificaciones);
        esperaLista(n(u"lstVia"), lista(n(u"lstVia"))->item(0)->text());
        EXPECT_EQ(b().NombreDomicilio, q(u"MAYOR")) << "the rest stays";
    }
}

TEST_P(Codigos, ProvinciaConocidaVaciaElMunicipio) {
    const struct {
        const char16_t *escrito, *mostrado, *provincia;
        qint32 codigo;
    } casos[] = {{u"28", u"28", u"Madrid", 28},
                 {u"1", u"01", u"Álava", 1},
                 {u"01", u"01", u"Álava", 1},
                 {u"20", u"20", u"Kelmaria", 20}};
    for (const auto& caso : casos) {
        SCOPED_TRACE(s(caso.escrito));
        b() = caso.codigo == 20 ? enOtraProvincia() : enProvinciaPropia();
        abrir();
        rellenar(n(u"numCodProv"), q(caso.escrito));
        EXPECT_EQ(b().CodigoProvincia, caso.codigo);
        EXPECT_EQ(b().NombreProvincia, q(caso.provincia));
        EXPECT_EQ(b().CodigoMunicipio, 0);
        EXPECT_EQ(b().NombreMunicipio, QString());
        EXPECT_EQ(texto(n(u"numCodProv")), q(caso.mostrado));
        EXPECT_EQ(texto(n(u"txtProv")), q(caso.provincia));
        EXPECT_EQ(texto(n(u"txtMun")) + texto(n(u"numCodMun")), QString());
        EXPECT_EQ(habilitado(n(u"cmdLstMun")), caso.codigo == 20);
        EXPECT_EQ(bloqueado(n(u"txtMun")), caso.codigo == 20);
        EXPECT_EQ(bloqueado(n(u"numCodMun")), caso.codigo != 20);
        EXPECT_TRUE(r.Modificaciones);
        EXPECT_FALSE(visible(n(u"lstProv")));
    }
}

TEST_P(Codigos, ProvinciaDesconocidaVaciaTodoYAbreLaLista) {
    for (const auto& escrito : {q(u"99"), q(u"0"), QString()}) {
        b() = enProvinciaPropia();
        abrir();
        rellenar(n(u"numCodProv"), escrito);
        EXPECT_EQ(b().CodigoProvincia, 0);
        EXPECT_EQ(b().CodigoMunicipio, 0);
        EXPECT_EQ(b().NombreProvincia + b().NombreMunicipio, QString());
        for (const auto* campo : {u"numCodProv", u"txtProv", u"numCodMun", u"txtMun"})
            EXPECT_EQ(texto(n(campo)), QString()) << s(campo);
        EXPECT_FALSE(habilitado(n(u"cmdLstMun")));
        EXPECT_EQ(b().CodigoPostal, 20001) << "the postal code stays";
        EXPECT_TRUE(r.Modificaciones);
        esperaLista(n(u"lstProv"), lista(n(u"lstProv"))->item(0)->text());
    }
}

TEST_P(Codigos, MunicipioConocidoTraeSuNombre) {
    b() = enProvinciaPropia();
    abrir();
    rellenar(n(u"numCodMun"), q(u"69"));
    EXPECT_EQ(b().CodigoMunicipio, 69);
    EXPECT_EQ(b().NombreMunicipio, estado.catalogo.NombreMunicipio(69));
    EXPECT_EQ(texto(n(u"txtMun")), estado.catalogo.NombreMunicipio(69));
    EXPECT_TRUE(r.Modificaciones);
    EXPECT_FALSE(visible(n(u"lstMun")));
}

TEST_P(Codigos, MunicipioDesconocidoVaciaYAbreLaLista) {
    const QString anterior = estado.catalogo.NombreMunicipio(69);
    for (const auto& escrito : {q(u"999"), QString()}) {
        b() = enProvinciaPropia();
        b().CodigoMunicipio = 69;
        b().NombreMunicipio = anterior;
        abrir();
        rellenar(n(u"numCodMun"), escrito);
        EXPECT_EQ(b().CodigoMunicipio, 0);
        EXPECT_EQ(b().NombreMunicipio, QString());
        EXPECT_EQ(texto(n(u"numCodMun")) + texto(n(u"txtMun")), QString());
        EXPECT_EQ(b().CodigoProvincia, 20);
        EXPECT_TRUE(r.Modificaciones);
        esperaLista(n(u"lstMun"), anterior);
    }
}

TEST_P(Codigos, ElMismoCodigoNoCambiaNada) {
    b() = enProvinciaPropia();
    abrir();
    sinCambios([&] {
        rellenar(n(u"txtSigDom"), q(u"CL"));
        rellenar(n(u"numCodProv"), q(u"20"));
        rellenar(n(u"numCodMun"), q(u"001"));
    });
}

TEST_P(Codigos, UnDesconocidoDetieneLaOrdenQueDejoElCampo) {
    b() = enOtraProvincia();
    for (const auto* salida : {u"cmdInicio", u"cmdApartadoAnterior", u"cmdCancelar"}) {
        abrir();
        escribir(n(u"txtSigDom"), q(u"ZZ"));
        pulsar(q(salida));
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        esperaLista(n(u"lstVia"), lista(n(u"lstVia"))->item(0)->text());
    }
}

TEST_P(Codigos, LaProvinciaCerradaCogeElFocoConElRaton) {
    b() = enOtraProvincia();
    abrir();
    pulsar(n(u"txtProv"));
    ASSERT_EQ(foco(), n(u"txtProv"));
    sinCambios([&] { pulsar(n(u"txtDom")); });
    ASSERT_EQ(foco(), n(u"txtDom"));
    pulsar(n(u"txtProv"));
    c<QLineEdit>(n(u"txtProv"))->clear();
    avisos.Espera(q(u"El nombre de provincia no ha sido proporcionado"),
                  q(u"Nombre de provincia no válido"));
    sinCambios([&] { pulsar(n(u"txtDom")); });
    avisos.Verificar();
    EXPECT_EQ(foco(), n(u"txtDom"));
    pulsar(n(u"txtProv"));
    c<QLineEdit>(n(u"txtProv"))->setText(q(u"MADRID"));
    pulsar(n(u"txtDom"));
    EXPECT_EQ(b().NombreProvincia, q(u"MADRID"));
    EXPECT_TRUE(r.Modificaciones);
}
INSTANTIATE_TEST_SUITE_P(Domicilios, Codigos, LosCuatro());

}  // namespace
}  // namespace padral::pruebas
