// Record of section 3: names looked up, free texts, the effective date.

#include "sections/location/section3.h"

#include "sections/record_checks.h"
#include "sections/small_catalogue.h"

namespace padral::pruebas {
namespace {

struct Apartado3 : ConCatalogo {
    EstadoDeclaracion estado;
    cDatosGenerales generales{estado};
    cApartado3 r{generales, catalogo};

    const DatosApartado3& datos() const { return r; }
    /// A row in which only some columns are filled.
    static Fila fila(std::initializer_list<std::pair<qsizetype, QVariant>> valores) {
        Fila f = FilaDe<DatosApartado3>(DatosApartado3{}, TablaApartado3());
        for (const auto& [columna, valor] : valores) f[columna] = valor;
        return f;
    }
};

TEST_F(Apartado3, LaFechaDeInicioPoneLaFechaDeEfecto) {
    const struct {
        const char16_t* causa1;
        qint32 fecha, efecto;
    } casos[] = {
        {u"I", 20150101, 20150101},
        {u"P", 20140101, 20140101},
        {u"C", 20131231, 20131231},
        {u"", 20150101, 20150101},
        {u"M", 20150101, 0},
        {u"I", 0, 0},
        {u"I", -1, 0},
        {u"M", 0, 0},
    };
    for (const auto& caso : casos) {
        generales.Causa1 = q(caso.causa1);
        generales.FECHAVIGOR = 19991231;
        r.FechaInicio(caso.fecha);
        EXPECT_EQ(r.FechaInicio(), caso.fecha);
        EXPECT_EQ(generales.FECHAVIGOR, caso.efecto) << caso.fecha;
    }
}

TEST_F(Apartado3, CargarNoCambiaLaFechaDeEfecto) {
    generales.FECHAVIGOR = 19991231;
    r.CargarDatos(fila({{2, 20150101}}));
    EXPECT_EQ(r.FechaInicio(), 20150101);
    EXPECT_EQ(generales.FECHAVIGOR, 19991231);
}

TEST_F(Apartado3, InicializarTampoco) {
    generales.FECHAVIGOR = 19991231;
    r.InicializarApartado3();
    r.ObtenerDatosTablaAuxiliar();
    EXPECT_EQ(generales.FECHAVIGOR, 19991231);
}

TEST_F(Apartado3, EpigrafeDelCatalogoOLibre) {
    const struct {
        const char16_t* codigo;
        qint16 lengua;
        const char16_t* esperado;
    } casos[] = {
        {u"1651200", 0, u"Librería"}, {u"1651200", Euskera, u"Liburu-denda"},
        {u"0000000", 0, u""},         {u"", 0, u""},
        {u"9999999", 0, u"Libre"},    {u"9999999", Euskera, u"Libre"},
    };
    for (const auto& caso : casos) {
        desplazamiento = caso.lengua;
        r.CargarDatos(fila({{3, q(caso.codigo)}, {4, q(u"Libre")}}));
        EXPECT_EQ(r.ListaEpigrafe, q(caso.esperado)) << s(caso.codigo);
    }
}

TEST_F(Apartado3, FormaJuridicaDelCatalogoOLibre) {
    const struct {
        qint32 codigo;
        qint16 lengua;
        const char16_t* esperado;
    } casos[] = {{10, 0, u"Sociedad anónima"},
                 {10, Euskera, u"Sozietate anonimoa"},
                 {77, 0, u""},
                 {90, 0, u"Libre"},
                 {90, Euskera, u"Libre"}};
    for (const auto& caso : casos) {
        desplazamiento = caso.lengua;
        r.CargarDatos(fila({{5, caso.codigo}, {6, q(u"Libre")}}));
        EXPECT_EQ(r.DescripcionFormaJuridica, q(caso.esperado)) << caso.codigo;
    }
}

TEST_F(Apartado3, LasDescripcionesLibresVanYVuelven) {
    r.ActivEcon = q(u"9999999");
    r.ListaEpigrafe = q(u"Afinar pianos");
    r.CodigoFormaJuridica = 90;
    r.DescripcionFormaJuridica = q(u"Cofradía");
    cApartado3 otro(generales, catalogo);
    otro.CargarDatos(r.ObtenerDatos());
    EXPECT_TRUE(static_cast<const DatosApartado3&>(otro) == datos());
}

TEST_F(Apartado3, CargaLosVeintitresValores) {
    Fila f = filaDistinta(TablaApartado3());
    f[3] = q(u"9999999");
    f[5] = 90;
    r.CargarDatos(f);
    EXPECT_EQ(r.ObtenerDatos(), f);
    EXPECT_TRUE(r.TablaAuxiliar() == datos());
}

TEST_F(Apartado3, LlenoSigueALaMarcaYModificacionesNoCambia) {
    for (const auto* marca : {u"X", u" ", u""}) {
        generales.Apartado3 = q(marca);
        r.Modificaciones = true;
        r.CargarDatos({});
        EXPECT_EQ(r.Lleno, q(marca) == q(u"X"));
        EXPECT_EQ(r.TablaAuxiliar().Lleno, r.Lleno);
        EXPECT_TRUE(r.Modificaciones);
    }
}

TEST_F(Apartado3, UnCaracterFijo) {
    const struct {
        const char16_t* puesto;
        const char16_t* leido;
    } casos[] = {{u"", u" "}, {u"S", u"S"}, {u"Sí", u"S"}};
    for (const auto& caso : casos) {
        r.ResidenteKelmaria = q(caso.puesto);
        EXPECT_EQ(r.ResidenteKelmaria.texto(), q(caso.leido));
        EXPECT_EQ(r.ObtenerDatos()[0].toString(), q(caso.leido));
    }
}

TEST_F(Apartado3, InicializarVaciaTodoTambienLoQueNadieUsa) {
    for (auto operacion :
         {&cApartado3::InicializarApartado3, &cApartado3::ResetForNewDeclaration}) {
        r.CargarDatos(filaDistinta(TablaApartado3()));
        r.Act.NombreDomicilio = q(u"Mayor");
        r.Soc.Telefono = 943000000;
        r.Lleno = r.Modificaciones = true;
        r.RellenarTablaAuxiliar();
        (r.*operacion)();
        EXPECT_TRUE(datos() == DatosApartado3{});
        EXPECT_TRUE(r.TablaAuxiliar() == DatosApartado3{});
    }
}

TEST_F(Apartado3, LaCopiaVaYVuelveEntera) {
    r.CargarDatos(filaDistinta(TablaApartado3()));
    r.Act.NombreDomicilio = q(u"Mayor");
    r.Soc.Telefono = 943000000;
    r.Lleno = r.Modificaciones = true;
    const DatosApartado3 lleno = r;
    r.RellenarTablaAuxiliar();
    EXPECT_TRUE(r.TablaAuxiliar() == lleno);
    static_cast<DatosApartado3&>(r) = {};
    r.ObtenerDatosTablaAuxiliar();
    EXPECT_TRUE(datos() == lleno);

    DatosApartado3 otra;
    otra.Anagrama = q(u"ABC");
    r.TablaAuxiliar(otra);
    r.InicializarTablaAuxiliar();
    EXPECT_TRUE(r.TablaAuxiliar() == DatosApartado3{});
    EXPECT_TRUE(datos() == lleno);
}

}  // namespace
}  // namespace padral::pruebas
