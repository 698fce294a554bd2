// What is typed in section 3 comes back from the store.

#include "location/section3_fixture.h"

namespace padral::pruebas {
namespace {

class Guardado : public PantallaApartado3 {
protected:
    /// Saves the declaration as it stands and reads it in another run.
    DatosApartado3 idaYVuelta() {
        d.MarcarApartados();
        OtraRun otra(estado);
        otra.estado.DesplazamientoIdioma = estado.DesplazamientoIdioma;
        otra.d.csde = d.GuardarDeclaracion();
        otra.d.CargarDeclaracion();
        EXPECT_EQ(otra.d.general.FECHAVIGOR, 0) << "reading sets no date";
        EXPECT_TRUE(otra.d.apartado3.TablaAuxiliar() ==
                    static_cast<const DatosApartado3&>(otra.d.apartado3));
        return otra.d.apartado3;
    }
    void rellenarTodo() {
        pulsar(u"optResidente(1)");
        rellenar(u"numPorcenIVA", u"100");
        rellenar(u"mskFechaInicio", u"10032015");
        rellenar(u"txtAnagrama", u"AFINA");
        rellenar(u"mskFechaCierre", u"3006");
        for (const auto* caja :
             {u"chkSocPat", u"chkActVenMov", u"chkEuskera", u"chkElectronico", u"chkCorreoAlta",
              u"chkFaxAlta", u"chkTelMovilBaja", u"chkTelFijoAlta", u"chkRevocacion"})
            pulsar(caja);
        rellenar(u"txtDirCorreo", u"a@b.c");
        rellenar(u"numFax", u"943111111");
        rellenar(u"numMovil", u"600222222");
        rellenar(u"numFijo", u"943333333");
    }
};

TEST_F(Guardado, TodoLoTecleadoVuelve) {
    abrirValida();
    rellenarTodo();
    elegir(u"cmbEpigrafe", u"SIN ACTIVIDAD");
    rellenar(u"txtSinEpigrafe", u"AFINADOR DE PIANOS");
    elegir(u"cmbDescFormaJuridica", u"OTROS");
    rellenar(u"txtOtros", u"COFRADIA");
    pulsar(u"cmdSiguiente");
    ASSERT_TRUE(r.Lleno);
    const Fila esperada = {q(u"N"),
                           100,
                           20150310,
                           q(u"9999999"),
                           q(u"AFINADOR DE PIANOS"),
                           90,
                           q(u"COFRADIA"),
                           q(u"AFINA"),
                           630,
                           q(u"X"),
                           q(u"E"),
                           q(u"E"),
                           q(u"A"),
                           q(u"A@B.C"),
                           q(u"A"),
                           943111111,
                           q(u"B"),
                           600222222,
                           q(u"A"),
                           943333333,
                           q(u" "),
                           q(u"S"),
                           q(u"X")};
    EXPECT_EQ(r.ObtenerDatos(), esperada);
    const DatosApartado3 leido = idaYVuelta();
    EXPECT_EQ(FilaDe<DatosApartado3>(leido, TablaApartado3()), esperada);
    EXPECT_TRUE(leido.Lleno);
    EXPECT_FALSE(leido.Modificaciones);
}

TEST_F(Guardado, LosNombresDelCatalogoVuelvenEnElIdiomaDeLaRun) {
    abrirValida();
    elegir(u"cmbEpigrafe", u"ZAPATERIA");
    elegir(u"cmbDescFormaJuridica", u"SOCIEDAD LIMITADA - B");
    pulsar(u"cmdSiguiente");
    EXPECT_EQ(idaYVuelta().ListaEpigrafe, q(u"ZAPATERIA"));
    enEuskera();
    const DatosApartado3 leido = idaYVuelta();
    EXPECT_EQ(leido.ActivEcon, q(u"1.3333"));
    EXPECT_EQ(leido.ListaEpigrafe, q(u"OSKI DENDA"));
    EXPECT_EQ(leido.CodigoFormaJuridica, 6);
    EXPECT_EQ(leido.DescripcionFormaJuridica, q(u"SOZIETATE MUGATUA - B"));
}

TEST_F(Guardado, LoVaciadoVuelveVacioPeroLleno) {
    abrirValida();
    rellenarTodo();
    rellenar(u"numPorcenIVA", u"");
    rellenar(u"mskFechaInicio", u"");
    rellenar(u"txtAnagrama", u"");
    rellenar(u"mskFechaCierre", u"");
    for (const auto* caja :
         {u"chkSocPat", u"chkActVenMov", u"chkEuskera", u"chkElectronico", u"chkCorreoAlta",
          u"chkFaxAlta", u"chkTelMovilBaja", u"chkTelFijoAlta", u"chkRevocacion"})
        pulsar(caja);
    pulsar(u"optResidente(0)");
    pulsar(u"cmdSiguiente");
    DatosApartado3 esperado;
    esperado.ResidenteKelmaria = q(u"S");
    esperado.ActivEcon = q(u"1.2222");
    esperado.ListaEpigrafe = q(u"LIBRERIA");
    esperado.Lleno = true;
    const DatosApartado3 leido = idaYVuelta();
    EXPECT_TRUE(leido == esperado);
}

}  // namespace
}  // namespace padral::pruebas
