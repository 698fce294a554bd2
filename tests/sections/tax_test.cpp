// Records of sections 4, 5, 6 and 7: clearing, marks, auxiliary copies.

#include "declaration/section6.h"
#include "sections/record_checks.h"
#include "sections/tax/section4.h"
#include "sections/tax/section5.h"
#include "sections/tax/section7.h"

namespace padral::pruebas {
namespace {

struct Registros : testing::Test {
    EstadoDeclaracion estado;
    cDatosGenerales generales{estado};
};

struct Apartado4 : Registros {
    cApartado4 r{generales};
};
struct Apartado5 : Registros {
    cApartado5 r{generales};
};
struct Apartado6 : Registros {
    cApartado6 r{generales};
};
struct Apartado7 : Registros {
    cApartado7 r{generales};
};

/// A flag is true for "X" alone.
const struct {
    const char16_t* marca;
    bool lleno;
} Marcas[] = {{u"X", true}, {u" ", false}, {u"", false}, {u"x", false}};

// Section 4 ------------------------------------------------------------------------------------

TEST_F(Apartado4, NaceEnBlanco) {
    EXPECT_EQ(r.IVACAJA.texto(), q(u" "));
    EXPECT_EQ(r.NIF.texto(), q(u"         "));
    EXPECT_EQ(r.NOMBRE.texto().size(), 40);
    EXPECT_FALSE(r.Lleno);
    EXPECT_FALSE(r.MODIFAPARTADO4);
}

TEST_F(Apartado4, CargaComoVieneYDevuelveLoMismo) {
    const Fila fila = filaDistinta(TablaApartado4());
    generales.Apartado4 = q(u"X");
    r.CargarDatos(fila);
    EXPECT_EQ(r.ObtenerDatos(), fila);
}

TEST_F(Apartado4, LlenoSigueALaMarca) {
    for (const auto& m : Marcas) {
        generales.Apartado4 = q(m.marca);
        r.CargarDatos({});
        EXPECT_EQ(r.Lleno, m.lleno) << s(m.marca);
    }
}

TEST_F(Apartado4, NoSeConvierteNingunValor) {
    generales.Apartado4 = q(u"X");
    Fila fila = filaDistinta(TablaApartado4());
    fila[8] = q(u"N");
    fila[13] = q(u" ");
    r.CargarDatos(fila);
    EXPECT_EQ(r.IVASOCIO, q(u"N"));
    EXPECT_EQ(r.ObtenerDatos()[8], QVariant(q(u"N")));
    EXPECT_EQ(r.ObtenerDatos()[13], QVariant(q(u" ")));
}

TEST_F(Apartado4, LaCopiaGuardaValoresYLleno) {
    generales.Apartado4 = q(u"X");
    r.CargarDatos(filaDistinta(TablaApartado4()));
    const DatosApartado4 cargado = r;
    r.IVACAJA = q(u"O");
    r.NIF = q(u"12345678Z");
    r.Lleno = false;
    r.MODIFAPARTADO4 = true;
    r.RecuperarDatosAuxiliares();
    EXPECT_TRUE(cargado == static_cast<const DatosApartado4&>(r));
    EXPECT_TRUE(r.Lleno);
    EXPECT_TRUE(r.MODIFAPARTADO4) << "not part of the copy";

    r.IVACAJA = q(u"O");
    r.GuardarDatosAuxiliares();
    r.IVACAJA = q(u"E");
    r.RecuperarDatosAuxiliares();
    EXPECT_EQ(r.IVACAJA, q(u"O"));
}

TEST_F(Apartado4, InicializarLimpiaTodoTambienLaCopia) {
    generales.Apartado4 = q(u"X");
    for (auto operacion : {&cApartado4::InicializarApartado4, &cApartado4::LIMPIARDATOS,
                           &cApartado4::ResetForNewDeclaration}) {
        r.CargarDatos(filaDistinta(TablaApartado4()));
        r.MODIFAPARTADO4 = true;
        (r.*operacion)();
        EXPECT_FALSE(r.MODIFAPARTADO4);
        EXPECT_TRUE(static_cast<const DatosApartado4&>(r) == DatosApartado4{});
        r.RecuperarDatosAuxiliares();
        EXPECT_TRUE(static_cast<const DatosApartado4&>(r) == DatosApartado4{});
    }
}

// Section 5 ------------------------------------------------------------------------------------

Fila todas(const char16_t* valor) { return Fila(28, QVariant(q(valor))); }

TEST_F(Apartado5, CargaDeSeccionMarcada) {
    const struct {
        const char16_t* guardado;
        const char16_t* leido;
    } casos[] = {{u" ", u"N"}, {u"", u"N"}, {u"S", u"S"}, {u"N", u"N"}, {u"s", u"s"}};
    generales.Apartado5 = q(u"X");
    for (const auto& caso : casos) {
        r.CargarDatos(todas(caso.guardado));
        EXPECT_TRUE(r.APARTADO5LLENO);
        for (const auto& c : TablaApartado5())
            EXPECT_EQ(c.leer(r).toString(), q(caso.leido)) << s(c.nombre);
    }
}

TEST_F(Apartado5, CargaDeSeccionSinMarcarDejaLosValores) {
    for (const auto* marca : {u" ", u""}) {
        generales.Apartado5 = q(marca);
        for (const auto* valor : {u" ", u"S", u"N"}) {
            r.CargarDatos(todas(valor));
            EXPECT_FALSE(r.APARTADO5LLENO);
            for (const auto& c : TablaApartado5()) EXPECT_EQ(c.leer(r).toString(), q(valor));
        }
    }
}

TEST_F(Apartado5, GuardarConvierteSoloElNoDeSeccionMarcada) {
    const struct {
        const char16_t* marca;
        const char16_t* respuesta;
        const char16_t* guardado;
    } casos[] = {{u"X", u"N", u" "}, {u"X", u"S", u"S"}, {u"X", u" ", u" "}, {u"X", u"n", u"n"},
                 {u" ", u"N", u"N"}, {u"", u"N", u"N"},  {u" ", u"S", u"S"}, {u" ", u" ", u" "}};
    for (const auto& caso : casos) {
        generales.Apartado5 = q(caso.marca);
        for (const auto& c : TablaApartado5()) c.escribir(r, q(caso.respuesta));
        EXPECT_EQ(r.ObtenerDatos(), todas(caso.guardado));
    }
}

TEST_F(Apartado5, IdaYVueltaDeSeccionMarcadaNoDejaBlancos) {
    generales.Apartado5 = q(u"X");
    for (const auto& c : TablaApartado5()) c.escribir(r, q(u"N"));
    r.SOCIEDADES = q(u"S");
    r.IVACAJA = q(u" ");
    const Fila fila = r.ObtenerDatos();
    cApartado5 otro(generales);
    otro.CargarDatos(fila);
    EXPECT_EQ(otro.SOCIEDADES, q(u"S"));
    for (const auto& c : TablaApartado5())
        EXPECT_FALSE(c.leer(otro).toString().trimmed().isEmpty());
}

TEST_F(Apartado5, LaMarcaDeOtraSeccionNoCuenta) {
    generales.Apartado4 = q(u"X");
    r.CargarDatos(todas(u" "));
    EXPECT_FALSE(r.APARTADO5LLENO);
    EXPECT_EQ(r.IVA, q(u" "));
}

TEST_F(Apartado5, InicializarDejaLasBanderasComoEstan) {
    generales.Apartado5 = q(u"X");
    r.MODIFAPARTADO5 = true;
    r.CargarDatos(todas(u"S"));
    r.InicializarApartado5();
    for (const auto& c : TablaApartado5()) EXPECT_EQ(c.leer(r).toString(), q(u" "));
    EXPECT_TRUE(r.APARTADO5LLENO);
    EXPECT_TRUE(r.MODIFAPARTADO5);

    r.APARTADO5LLENO = r.MODIFAPARTADO5 = false;
    r.IVA = q(u"S");
    r.RecuperarDatosAuxiliares();
    for (const auto& c : TablaApartado5()) EXPECT_EQ(c.leer(r).toString(), q(u" "));
    EXPECT_TRUE(r.APARTADO5LLENO) << "the copy keeps its flags";
    EXPECT_TRUE(r.MODIFAPARTADO5) << "the copy keeps its flags";
}

TEST_F(Apartado5, DeclaracionNuevaNoHeredaLaMarca) {
    generales.Apartado5 = q(u"X");
    r.CargarDatos(todas(u"S"));
    r.MODIFAPARTADO5 = true;
    r.ResetForNewDeclaration();
    EXPECT_TRUE(static_cast<const DatosApartado5&>(r) == DatosApartado5{});
    r.APARTADO5LLENO = true;
    r.RecuperarDatosAuxiliares();
    EXPECT_TRUE(static_cast<const DatosApartado5&>(r) == DatosApartado5{});
}

TEST_F(Apartado5, LaCopiaGuardaRespuestasYBanderas) {
    generales.Apartado5 = q(u"X");
    r.CargarDatos(todas(u"S"));
    r.IVA = q(u"N");
    r.APARTADO5LLENO = false;
    r.MODIFAPARTADO5 = true;
    r.RecuperarDatosAuxiliares();
    EXPECT_EQ(r.IVA, q(u"S"));
    EXPECT_TRUE(r.APARTADO5LLENO);
    EXPECT_FALSE(r.MODIFAPARTADO5);

    r.IVA = q(u"N");
    r.MODIFAPARTADO5 = true;
    r.GuardarDatosAuxiliares();
    r.IVA = q(u"S");
    r.MODIFAPARTADO5 = false;
    r.RecuperarDatosAuxiliares();
    EXPECT_EQ(r.IVA, q(u"N"));
    EXPECT_TRUE(r.MODIFAPARTADO5);
}

// Section 6 ------------------------------------------------------------------------------------

TEST_F(Apartado6, CargaSusCuatroValores) {
    generales.Apartado6 = q(u"X");
    r.CargarDatos({20150331, 99, q(u"Jubilación"), 20150401});
    EXPECT_EQ(r.FECHACESE, 20150331);
    EXPECT_EQ(r.CAUSA, 99);
    EXPECT_EQ(r.DESCRIPCIONCAUSA.recortado(), q(u"Jubilación"));
    EXPECT_EQ(r.FechaInscripcion, 20150401);
    EXPECT_TRUE(r.Lleno);
    EXPECT_EQ(r.ObtenerDatos(), Fila({20150331, 99, q(u"Jubilación          "), 20150401}));
}

TEST_F(Apartado6, LlenoSigueALaMarca) {
    for (const auto& m : Marcas) {
        generales.Apartado6 = q(m.marca);
        r.CargarDatos({});
        EXPECT_EQ(r.Lleno, m.lleno) << s(m.marca);
    }
}

TEST_F(Apartado6, LaDescripcionSeCortaEnVeinte) {
    r.DESCRIPCIONCAUSA = q(u"123456789012345678901");
    EXPECT_EQ(r.ObtenerDatos()[2], QVariant(q(u"12345678901234567890")));
}

TEST_F(Apartado6, LaCopiaGuardaSoloLosValoresDelAlmacen) {
    generales.Apartado6 = q(u"X");
    r.CargarDatos({20150331, 10, q(u"Cese"), 0});
    r.FECHACESE = 20160101;
    r.CAUSA = 99;
    r.DESCRIPCIONCAUSA = q(u"Otra");
    r.FechaInscripcion = 20160102;
    r.OTRASCAUSAS = q(u"Otra");
    r.Lleno = false;
    r.MODIFAPARTADO6 = true;
    r.RecuperarDatosAuxiliares();
    EXPECT_EQ(r.ObtenerDatos(), Fila({20150331, 10, q(u"Cese                "), 0}));
    EXPECT_EQ(r.OTRASCAUSAS, q(u"Otra"));
    EXPECT_FALSE(r.Lleno);
    EXPECT_TRUE(r.MODIFAPARTADO6);
}

TEST_F(Apartado6, InicializarLimpiaTambienLaCopia) {
    generales.Apartado6 = q(u"X");
    for (auto operacion : {&cApartado6::InicializarApartado6, &cApartado6::LIMPIARDATOS,
                           &cApartado6::ResetForNewDeclaration}) {
        r.CargarDatos({20150331, 10, q(u"Cese"), 20150401});
        r.MODIFAPARTADO6 = true;
        (r.*operacion)();
        EXPECT_FALSE(r.Lleno);
        EXPECT_FALSE(r.MODIFAPARTADO6);
        const Fila vacia = {0, 0, q(u"                    "), 0};
        EXPECT_EQ(r.ObtenerDatos(), vacia);
        r.CAUSA = 10;
        r.RecuperarDatosAuxiliares();
        EXPECT_EQ(r.ObtenerDatos(), vacia);
    }
}

TEST_F(Apartado6, DeclaracionNuevaNoHeredaElTextoLibre) {
    r.OTRASCAUSAS = q(u"Otra");
    r.LIMPIARDATOS();
    EXPECT_EQ(r.OTRASCAUSAS, q(u"Otra"));
    r.ResetForNewDeclaration();
    EXPECT_EQ(r.OTRASCAUSAS, q(u""));
}

// Section 7 ------------------------------------------------------------------------------------

/// 59 answers not given and no flag.
void esperaVacio(const DatosApartado7& datos) {
    EXPECT_EQ(FilaDe<DatosApartado7>(datos, TablaApartado7()), Fila(59, QVariant(q(u""))));
    EXPECT_FALSE(datos.Lleno);
    EXPECT_FALSE(datos.Modificaciones);
}

TEST_F(Apartado7, BulgariaVaALaPosicion48) {
    r.LimSupPais[25 - 1] = q(u"S");
    const Fila fila = r.ObtenerDatos();
    EXPECT_EQ(fila[48], QVariant(q(u"S")));
    EXPECT_EQ(fila[2 * (4 - 1)], QVariant(q(u"")));
}

TEST_F(Apartado7, CargaComoVieneYSigueALaMarca) {
    const Fila fila = filaDistinta(TablaApartado7());
    for (const auto& m : Marcas) {
        generales.Apartado7 = q(m.marca);
        r.CargarDatos(fila);
        EXPECT_EQ(r.Lleno, m.lleno) << s(m.marca);
        EXPECT_EQ(r.ObtenerDatos(), fila);
        EXPECT_TRUE(r.ObtenerDatosTablaAuxiliar() == static_cast<const DatosApartado7&>(r));
    }
}

TEST_F(Apartado7, LaCopiaGuardaTodo) {
    generales.Apartado7 = q(u"X");
    r.CargarDatos(filaDistinta(TablaApartado7()));
    const DatosApartado7 cargado = r;
    r.LimSupPais[0].clear();
    r.DestRevocPais[26].clear();
    r.TributDestino.clear();
    r.Lleno = false;
    r.Modificaciones = true;
    r.RecuperarDatosAuxiliares();
    EXPECT_TRUE(cargado == static_cast<const DatosApartado7&>(r));
    r.Agric = q(u"S");
    r.GuardarDatosAuxiliares();
    EXPECT_EQ(r.ObtenerDatosTablaAuxiliar().Agric, q(u"S"));
}

TEST_F(Apartado7, LaCopiaEnteraSePoneYSeVacia) {
    DatosApartado7 datos;
    datos.MasLimEuros = q(u"N");
    datos.Modificaciones = true;
    r.RellenarTablaAuxiliar(datos);
    EXPECT_TRUE(r.ObtenerDatosTablaAuxiliar() == datos);
    esperaVacio(r);
    r.InicializarTablaAuxiliar();
    esperaVacio(r.ObtenerDatosTablaAuxiliar());
}

TEST_F(Apartado7, InicializarVaciaRespuestasYDejaBanderas) {
    generales.Apartado7 = q(u"X");
    r.CargarDatos(filaDistinta(TablaApartado7()));
    r.Modificaciones = true;
    r.InicializarApartado7();
    EXPECT_EQ(r.ObtenerDatos(), Fila(59, QVariant(q(u""))));
    EXPECT_TRUE(r.Lleno);
    EXPECT_TRUE(r.Modificaciones);
    EXPECT_TRUE(r.ObtenerDatosTablaAuxiliar() == static_cast<const DatosApartado7&>(r));
}

TEST_F(Apartado7, DeclaracionNuevaNoHeredaNada) {
    generales.Apartado7 = q(u"X");
    r.CargarDatos(filaDistinta(TablaApartado7()));
    r.Modificaciones = true;
    r.ResetForNewDeclaration();
    esperaVacio(r);
    esperaVacio(r.ObtenerDatosTablaAuxiliar());
}

}  // namespace
}  // namespace padral::pruebas
