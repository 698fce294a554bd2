// Section 2 typed, saved, loaded by another run and shown again.

#include "location/section2_fixture.h"

namespace padral::pruebas {
namespace {

class ConAlmacenDeVuelta : public EnCadaDomicilio {
protected:
    void escribirPropia() {
        rellenar(n(u"txtSigDom"), q(u"CL"));
        rellenar(n(u"txtDom"), q(u"MAYOR"));
        rellenar(n(u"numCodProv"), q(u"20"));
        rellenar(n(u"numCod"), q(u"20013"));
        rellenar(n(u"numCodMun"), q(u"69"));
    }
    void escribirAjena() {
        rellenar(n(u"txtSigDom"), q(u"PZ"));
        rellenar(n(u"txtDom"), q(u"ESPAÑA"));
        rellenar(n(u"numNum"), q(u"12345"));
        rellenar(n(u"txtLet"), q(u"B"));
        rellenar(n(u"txtEsc"), q(u"1"));
        rellenar(n(u"txtPis"), q(u"2"));
        rellenar(n(u"txtMan"), q(u"IZQ"));
        rellenar(n(u"numCodProv"), q(u"1"));
        rellenar(n(u"numCod"), q(u"1005"));
        rellenar(n(u"txtMun"), q(u"VITORIA"));
        rellenar(n(u"numTel"), q(u"945000000"));
    }
    /// Accepts, saves, and loads into the records of a second run.
    BloqueDireccion alAlmacenYVuelta(OtraRun& otra) {
        pulsar(q(u"cmdInicio"));
        EXPECT_TRUE(r.Lleno);
        d.MarcarApartados();
        otra.d.csde = d.GuardarDeclaracion();
        otra.d.CargarDeclaracion();
        EXPECT_TRUE(otra.d.apartado2.Lleno);
        EXPECT_TRUE(static_cast<const DatosApartado2&>(otra.d.apartado2) ==
                    otra.d.apartado2.TablaAuxiliar());
        return otra.d.apartado2.*GetParam().bloque;
    }
};

TEST_P(ConAlmacenDeVuelta, EnLaProvinciaPropiaElNombreVuelvePorElCodigo) {
    abrir();
    escribirPropia();
    OtraRun otra(estado);
    const auto vuelto = alAlmacenYVuelta(otra);
    EXPECT_TRUE(vuelto == b());
    EXPECT_EQ(vuelto.CodigoMunicipio, 69);
    EXPECT_EQ(vuelto.NombreMunicipio, estado.catalogo.NombreMunicipio(69));
    SvrDPadral::FilasDeclaracion filas;
    almacen.Servidor().CargarDeclaracion(otra.d.csde, filas);
    for (const auto& valor : filas.apartado2)
        EXPECT_NE(valor.toString(), vuelto.NombreMunicipio) << "the code alone is stored";
}

TEST_P(ConAlmacenDeVuelta, EnOtraProvinciaVuelveTodo) {
    abrir();
    escribirAjena();
    OtraRun otra(estado);
    const auto vuelto = alAlmacenYVuelta(otra);
    EXPECT_TRUE(vuelto == b());
    EXPECT_EQ(vuelto.CodigoProvincia, 1);
    EXPECT_EQ(vuelto.NombreProvincia, q(u"Álava"));
    EXPECT_EQ(vuelto.NombreMunicipio, q(u"VITORIA"));
    r.InicializarApartado2(u"TODOS");
    b() = vuelto;
    abrir();
    EXPECT_EQ(texto(n(u"numCod")), q(u"01005"));
    EXPECT_EQ(texto(n(u"numCodProv")), q(u"01"));
    EXPECT_EQ(texto(n(u"txtVia")), q(u"Plaza"));
}

using MarcaDeVuelta = ConAlmacenDeVuelta;

TEST_P(MarcaDeVuelta, LaMarcaVuelve) {
    r.Fis = enProvinciaPropia();
    abrir();
    pulsar(q(GetParam().marca));
    OtraRun otra(estado);
    EXPECT_TRUE(alAlmacenYVuelta(otra) == BloqueDireccion{});
    EXPECT_EQ(otra.d.apartado2.*GetParam().elMismo, q(u"X"));
}
INSTANTIATE_TEST_SUITE_P(Domicilios, MarcaDeVuelta, LosMarcables());

TEST_P(ConAlmacenDeVuelta, ConPostalCeroLaProvinciaQueda) {
    b() = enOtraProvincia();
    b().CodigoPostal = 0;
    const Fila fila = r.ObtenerDatos();
    r.InicializarApartado2(u"TODOS");
    b().CodigoProvincia = 20;
    b().CodigoMunicipio = 1;
    r.CargarDatos(fila);
    EXPECT_EQ(b().CodigoProvincia, 20) << "as it was";
    abrir();
    EXPECT_EQ(texto(n(u"txtProv")), q(u"Kelmaria"));
    EXPECT_EQ(texto(n(u"numCod")), QString());
    EXPECT_FALSE(bloqueado(n(u"numCodMun")));
    esperaAviso(128, 129);
    pulsar(q(u"cmdInicio"));
}
INSTANTIATE_TEST_SUITE_P(Domicilios, ConAlmacenDeVuelta, LosCuatro());

}  // namespace
}  // namespace padral::pruebas
