// Record of section 2: four blocks, their marks, the working copy.

#include "sections/location/section2.h"

#include "sections/record_checks.h"
#include "sections/small_catalogue.h"

namespace padral::pruebas {
namespace {

BloqueDireccion bloqueLleno() {
    return {q(u"CL"), q(u"Calle"), q(u"Mayor"),  7,     q(u"B"), q(u"1"),       q(u"2"),
            q(u"IZ"), 28,          q(u"Lejana"), 28001, 0,       q(u"Poblado"), 943000000};
}

struct Apartado2 : ConCatalogo {
    EstadoDeclaracion estado;
    cDatosGenerales generales{estado};
    cApartado2 r{generales, catalogo};

    /// All four blocks filled, both flags true, another working copy.
    void llenar(const QString& marca) {
        r.Fis = r.Act = r.Soc = r.Not = bloqueLleno();
        r.ElMismoAct = r.ElMismoSoc = r.ElMismoNot = marca;
        r.Lleno = r.Modificaciones = true;
        DatosApartado2 copia = r;
        copia.Fis.Numero = 99;
        r.TablaAuxiliar(copia);
    }
    /// A row with the values of one block at its first column.
    static Fila filaCon(qsizetype columna, const Fila& valores) {
        DatosApartado2 vacio;
        Fila fila = FilaDe<DatosApartado2>(vacio, TablaApartado2());
        for (qsizetype i = 0; i < valores.size(); ++i) fila[columna + i] = valores[i];
        return fila;
    }
    static Fila bloque(int postal, int municipio, const char16_t* nombre) {
        return {q(u"CL"), q(u"Mayor"), 7,         q(u"B"),   q(u"1"),  q(u"2"),
                q(u"IZ"), postal,      municipio, q(nombre), 943000000};
    }
    const DatosApartado2& datos() const { return r; }
};

struct Bloque {
    const char16_t* sufijo;
    BloqueDireccion DatosApartado2::*bloque;
    QString DatosApartado2::*marca;
    qsizetype columna;
};
const Bloque Bloques[] = {
    {u"FIS", &DatosApartado2::Fis, nullptr, 0},
    {u"ACT", &DatosApartado2::Act, &DatosApartado2::ElMismoAct, 11},
    {u"SOC", &DatosApartado2::Soc, &DatosApartado2::ElMismoSoc, 23},
    {u"NOT", &DatosApartado2::Not, &DatosApartado2::ElMismoNot, 35},
};

TEST_F(Apartado2, InicializarUnBloqueVaciaEseYDaLaVueltaASuMarca) {
    const struct {
        const char16_t* antes;
        const char16_t* despues;
    } marcas[] = {{u"X", u""}, {u"", u"X"}, {u" ", u"X"}};
    for (const auto& b : Bloques)
        for (const auto& m : marcas) {
            SCOPED_TRACE(s(b.sufijo) + s(m.antes));
            llenar(q(m.antes));
            DatosApartado2 esperado = r;
            esperado.*b.bloque = {};
            if (b.marca) esperado.*b.marca = q(m.despues);
            const DatosApartado2 copia = r.TablaAuxiliar();
            r.InicializarApartado2(QString::fromUtf16(b.sufijo));
            EXPECT_TRUE(datos() == esperado);
            EXPECT_TRUE(r.TablaAuxiliar() == copia);
        }
}

TEST_F(Apartado2, InicializarTodosVaciaTodoTambienLaCopia) {
    for (const auto* marca : {u"X", u""}) {
        llenar(q(marca));
        r.InicializarApartado2(u"TODOS");
        EXPECT_TRUE(datos() == DatosApartado2{});
        EXPECT_TRUE(r.TablaAuxiliar() == DatosApartado2{});
    }
    llenar(q(u"X"));
    r.ResetForNewDeclaration();
    EXPECT_TRUE(datos() == DatosApartado2{});
    EXPECT_TRUE(r.TablaAuxiliar() == DatosApartado2{});
}

TEST_F(Apartado2, SufijoDesconocidoNoTocaNada) {
    llenar(q(u"X"));
    const DatosApartado2 antes = r, copia = r.TablaAuxiliar();
    r.InicializarApartado2(u"Soc");
    r.InicializarTablaAuxiliar(u"");
    EXPECT_TRUE(datos() == antes);
    EXPECT_TRUE(r.TablaAuxiliar() == copia);
}

TEST_F(Apartado2, MarcasDeLaCopiaAlInicializarla) {
    const struct {
        const char16_t* sufijo;
        QString DatosApartado2::*marca;
        const char16_t* enRegistro;
        const char16_t* enCopia;
        const char16_t* despues;
    } casos[] = {
        {u"ACT", &DatosApartado2::ElMismoAct, u"X", u"X", u"X"},
        {u"ACT", &DatosApartado2::ElMismoAct, u"", u"", u"X"},
        {u"SOC", &DatosApartado2::ElMismoSoc, u"X", u"X", u"X"},
        {u"SOC", &DatosApartado2::ElMismoSoc, u"", u"", u"X"},
        // The notification mark follows the record's mark, not the copy's own.
        {u"NOT", &DatosApartado2::ElMismoNot, u"X", u"", u""},
        {u"NOT", &DatosApartado2::ElMismoNot, u"X", u"X", u""},
        {u"NOT", &DatosApartado2::ElMismoNot, u"", u"X", u"X"},
        {u"NOT", &DatosApartado2::ElMismoNot, u"", u"", u"X"},
    };
    for (const auto& caso : casos) {
        llenar(q(caso.enRegistro));
        DatosApartado2 copia = r.TablaAuxiliar();
        copia.ElMismoAct = copia.ElMismoSoc = copia.ElMismoNot = q(caso.enCopia);
        r.TablaAuxiliar(copia);
        const DatosApartado2 antes = r;
        r.InicializarTablaAuxiliar(QString::fromUtf16(caso.sufijo));
        EXPECT_EQ(r.TablaAuxiliar().*caso.marca, q(caso.despues)) << s(caso.sufijo);
        EXPECT_TRUE(r.TablaAuxiliar().Lleno);
        EXPECT_TRUE(r.TablaAuxiliar().Fis == copia.Fis);
        EXPECT_TRUE(datos() == antes);
    }
}

TEST_F(Apartado2, InicializarLaCopiaVaciaElBloqueDelSufijo) {
    for (const auto& b : Bloques) {
        llenar(q(u""));
        r.InicializarTablaAuxiliar(QString::fromUtf16(b.sufijo));
        for (const auto& otro : Bloques)
            EXPECT_EQ(r.TablaAuxiliar().*otro.bloque == BloqueDireccion{}, &otro == &b);
    }
    llenar(q(u"X"));
    r.InicializarTablaAuxiliar(u"TODOS");
    EXPECT_TRUE(r.TablaAuxiliar() == DatosApartado2{});
}

TEST_F(Apartado2, LlenoSigueTrasVaciarLosCuatroBloquesYAceptar) {
    llenar(q(u"X"));
    for (const auto& b : Bloques) r.InicializarApartado2(QString::fromUtf16(b.sufijo));
    r.RellenarTablaAuxiliar();
    r.Modificaciones = false;
    EXPECT_TRUE(r.Lleno);
    EXPECT_TRUE(r.TablaAuxiliar().Lleno);
}

TEST_F(Apartado2, LaCopiaVaYVuelveEntera) {
    llenar(q(u"X"));
    const DatosApartado2 lleno = r;
    r.RellenarTablaAuxiliar();
    EXPECT_TRUE(r.TablaAuxiliar() == lleno);
    static_cast<DatosApartado2&>(r) = {};
    r.ObtenerDatosTablaAuxiliar();
    EXPECT_TRUE(datos() == lleno);
}

TEST_F(Apartado2, CargaCadaBloqueConSusNombres) {
    generales.Apartado2 = q(u"X");
    for (const auto& b : Bloques) {
        SCOPED_TRACE(s(b.sufijo));
        r.InicializarApartado2(u"TODOS");
        Fila valores = bloque(28001, 0, u"Poblado");
        if (b.marca) valores.append(q(u"X"));
        r.CargarDatos(filaCon(b.columna, valores));
        DatosApartado2 esperado;
        esperado.*b.bloque = bloqueLleno();
        if (b.marca) esperado.*b.marca = q(u"X");
        esperado.Lleno = true;
        EXPECT_TRUE(datos() == esperado);
        EXPECT_TRUE(r.TablaAuxiliar() == esperado);
    }
}

TEST_F(Apartado2, ProvinciaPorCodigoPostal) {
    const struct {
        int postal;
        qint32 provincia;
        const char16_t* nombre;
    } casos[] = {{20500, 20, u"Kelmaria"},
                 {1005, 1, u"Uno"},
                 {28001, 28, u"Lejana"},
                 {50001, 50, u""},
                 {999, 0, u""}};
    for (const auto& caso : casos) {
        r.InicializarApartado2(u"TODOS");
        r.CargarDatos(filaCon(0, bloque(caso.postal, 0, u"")));
        EXPECT_EQ(r.Fis.CodigoProvincia, caso.provincia) << caso.postal;
        EXPECT_EQ(r.Fis.NombreProvincia, q(caso.nombre)) << caso.postal;
    }
}

TEST_F(Apartado2, PostalCeroDejaLaProvinciaYDaSuNombre) {
    r.Act.CodigoProvincia = 28;
    r.Soc.CodigoProvincia = 20;
    Fila fila = filaCon(11, bloque(0, 0, u"Poblado"));
    const Fila soc = bloque(0, 69, u"otro");
    for (qsizetype i = 0; i < soc.size(); ++i) fila[23 + i] = soc[i];
    r.CargarDatos(fila);
    EXPECT_EQ(r.Act.CodigoProvincia, 28);
    EXPECT_EQ(r.Act.NombreProvincia, q(u"Lejana"));
    EXPECT_EQ(r.Act.NombreMunicipio, q(u"Poblado"));
    EXPECT_EQ(r.Soc.CodigoProvincia, 20);
    EXPECT_EQ(r.Soc.NombreMunicipio, q(u"Capital"));
}

TEST_F(Apartado2, ElMunicipioVieneDelCodigoSoloEnLaProvinciaPropia) {
    r.CargarDatos(filaCon(0, bloque(20001, 69, u"otro")));
    EXPECT_EQ(r.Fis.NombreMunicipio, q(u"Capital"));
    r.CargarDatos(filaCon(0, bloque(28001, 69, u"otro")));
    EXPECT_EQ(r.Fis.NombreMunicipio, q(u"otro"));
    r.CargarDatos(filaCon(0, bloque(20001, 555, u"otro")));
    EXPECT_EQ(r.Fis.NombreMunicipio, q(u"")) << "an unknown code gives an empty name";
}

TEST_F(Apartado2, NombresEnLaLenguaDelMomento) {
    desplazamiento = Euskera;
    r.CargarDatos(filaCon(0, bloque(20001, 69, u"")));
    EXPECT_EQ(r.Fis.DescripcionSiglas, q(u"Kalea"));
    EXPECT_EQ(r.Fis.NombreProvincia, q(u"Kelmarria"));
    EXPECT_EQ(r.Fis.NombreMunicipio, q(u"Capital"));
}

TEST_F(Apartado2, LlenoSigueALaMarcaYModificacionesNoCambia) {
    for (const auto* marca : {u"X", u" ", u""}) {
        generales.Apartado2 = q(marca);
        r.Modificaciones = true;
        r.CargarDatos({});
        EXPECT_EQ(r.Lleno, q(marca) == q(u"X"));
        EXPECT_TRUE(r.Modificaciones);
    }
}

TEST_F(Apartado2, ElMunicipioNoSeGuardaCuandoLoDiceSuCodigo) {
    const struct {
        qint32 postal, provincia;
        const char16_t* guardado;
    } casos[] = {{20500, 20, u""},        {20001, 28, u""},  // the postal code decides
                 {28001, 28, u"Poblado"}, {28001, 20, u"Poblado"},  {0, 20, u"Poblado"},
                 {2050, 2, u"Poblado"},   {120500, 120, u"Poblado"}};
    for (const auto& b : Bloques)
        for (const auto& caso : casos) {
            llenar(q(u""));
            (r.*b.bloque).CodigoPostal = caso.postal;
            (r.*b.bloque).CodigoProvincia = caso.provincia;
            EXPECT_EQ(r.ObtenerDatos()[b.columna + 9].toString(), q(caso.guardado)) << caso.postal;
            EXPECT_EQ((r.*b.bloque).NombreMunicipio, q(u"Poblado"));
        }
}

TEST_F(Apartado2, GuardarYCargarConservaElMunicipio) {
    r.Fis = bloqueLleno();
    r.Act = bloqueLleno();
    r.Act.CodigoPostal = 20013;
    r.Act.CodigoMunicipio = 69;
    r.Act.NombreMunicipio = q(u"Capital");
    cApartado2 otro(generales, catalogo);
    otro.CargarDatos(r.ObtenerDatos());
    EXPECT_TRUE(otro.Fis == r.Fis);
    EXPECT_EQ(otro.Act.NombreMunicipio, q(u"Capital"));
    EXPECT_EQ(otro.Act.CodigoMunicipio, 69);
}

}  // namespace
}  // namespace padral::pruebas
