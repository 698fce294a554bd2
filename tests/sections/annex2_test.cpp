// Record of Annex II.

#include "sections/tax/annex2.h"

#include "sections/record_checks.h"
#include "sections/small_catalogue.h"

namespace padral::pruebas {
namespace {

struct AnexoII : ConCatalogo {
    EstadoDeclaracion estado;
    cDatosGenerales generales{estado};
    cAnexoII r{generales, catalogo};

    const DatosAnexoII& datos() const { return r; }
    static Fila fila(int provincia) {
        Fila f = filaDistinta(TablaAnexoII());
        f[13] = provincia;
        return f;
    }
};

TEST_F(AnexoII, CargaLosDiecinueveValoresYElNombreDeLaProvincia) {
    generales.AnexoII = q(u"X");
    r.CargarDatos(fila(20));
    EXPECT_EQ(r.ObtenerDatos(), fila(20));
    EXPECT_EQ(r.NombreProvincia, q(u"Kelmaria"));
    EXPECT_TRUE(r.Lleno);
    desplazamiento = Euskera;
    r.CargarDatos(fila(20));
    EXPECT_EQ(r.NombreProvincia, q(u"Kelmarria"));
}

TEST_F(AnexoII, ProvinciaCeroDejaLaQueHabia) {
    r.CargarDatos(fila(28));
    r.CargarDatos(fila(0));
    EXPECT_EQ(r.CodigoProvincia, 28);
    EXPECT_EQ(r.NombreProvincia, q(u"Lejana"));
    Fila comoTexto = fila(0);
    comoTexto[13] = q(u"20");
    r.CargarDatos(comoTexto);
    EXPECT_EQ(r.CodigoProvincia, 20);
}

TEST_F(AnexoII, ElMunicipioNoSeBuscaPorSuCodigo) {
    Fila f = fila(20);
    f[11] = 69;
    f[12] = q(u"Como se escribió");
    r.CargarDatos(f);
    EXPECT_EQ(r.NombreMunicipio, q(u"Como se escribió"));
}

TEST_F(AnexoII, LlenoSigueALaMarca) {
    for (const auto* marca : {u"X", u" ", u""}) {
        generales.AnexoII = q(marca);
        r.Modificaciones = true;
        r.CargarDatos({});
        EXPECT_EQ(r.Lleno, q(marca) == q(u"X"));
        EXPECT_TRUE(r.Modificaciones);
    }
}

TEST_F(AnexoII, InicializarVaciaTextosYDejaNumerosYBanderas) {
    generales.AnexoII = q(u"X");
    r.CargarDatos(fila(20));
    r.Modificaciones = true;
    r.RellenarTablaAuxiliar();
    const DatosAnexoII lleno = r;
    r.InicializarAnexoII();
    DatosAnexoII esperado;
    esperado.CodigoMunicipio = lleno.CodigoMunicipio;
    esperado.CodigoProvincia = 20;
    esperado.PORCENTAJE = lleno.PORCENTAJE;
    esperado.Lleno = esperado.Modificaciones = true;
    EXPECT_TRUE(datos() == esperado);
    r.ObtenerDatosTablaAuxiliar();
    EXPECT_TRUE(datos() == lleno) << "the copy stays";
}

TEST_F(AnexoII, DeclaracionNuevaNoHeredaNada) {
    generales.AnexoII = q(u"X");
    r.CargarDatos(fila(20));
    r.Modificaciones = true;
    r.ResetForNewDeclaration();
    EXPECT_TRUE(datos() == DatosAnexoII{});
    r.Lleno = true;
    r.ObtenerDatosTablaAuxiliar();
    EXPECT_TRUE(datos() == DatosAnexoII{});
}

TEST_F(AnexoII, LaCopiaVaYVuelveEntera) {
    generales.AnexoII = q(u"X");
    r.CargarDatos(fila(28));
    const DatosAnexoII cargado = r;
    static_cast<DatosAnexoII&>(r) = {};
    r.ObtenerDatosTablaAuxiliar();
    EXPECT_TRUE(datos() == cargado) << "loading renews the copy";

    r.Obligado = q(u"S");
    r.PORCENTAJE = 50;
    r.Modificaciones = true;
    const DatosAnexoII cambiado = r;
    r.RellenarTablaAuxiliar();
    static_cast<DatosAnexoII&>(r) = {};
    r.ObtenerDatosTablaAuxiliar();
    EXPECT_TRUE(datos() == cambiado);

    r.InicializarTablaAuxiliar();
    EXPECT_TRUE(datos() == cambiado);
    r.ObtenerDatosTablaAuxiliar();
    EXPECT_TRUE(datos() == DatosAnexoII{});
}

}  // namespace
}  // namespace padral::pruebas
