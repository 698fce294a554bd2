// Order of the values that each record exchanges with the store.

#include "declaration/section6.h"
#include "participants/participant.h"
#include "sections/location/section2.h"
#include "sections/location/section3.h"
#include "sections/record_checks.h"
#include "sections/tax/annex2.h"
#include "sections/tax/section4.h"
#include "sections/tax/section5.h"
#include "sections/tax/section7.h"

namespace padral::pruebas {
namespace {

using D2 = DatosApartado2;
using D3 = DatosApartado3;
using D4 = DatosApartado4;
using R5 = RespuestasApartado5;
using D6 = DatosApartado6;
using D7 = DatosApartado7;
using DA = DatosAnexoII;
using DP = DatosParticipe;

#define CAMPO_BLOQUE(sufijo, campo)                                                \
    Campo<D2> {                                                                    \
        q(u"" #campo #sufijo), [](const D2& d) { return deCampo(d.sufijo.campo); } \
    }
#define CAMPOS_BLOQUE(s)                                                                         \
    CAMPO_BLOQUE(s, SiglasDomicilio), CAMPO_BLOQUE(s, NombreDomicilio), CAMPO_BLOQUE(s, Numero), \
        CAMPO_BLOQUE(s, Letra), CAMPO_BLOQUE(s, Escalera), CAMPO_BLOQUE(s, Piso),                \
        CAMPO_BLOQUE(s, Mano), CAMPO_BLOQUE(s, CodigoPostal), CAMPO_BLOQUE(s, CodigoMunicipio),  \
        CAMPO_BLOQUE(s, NombreMunicipio), CAMPO_BLOQUE(s, Telefono)

TEST(Posiciones, Apartado2) {
    const std::vector<Campo<D2>> campos = {
        CAMPOS_BLOQUE(Fis),                         // 0 to 10
        CAMPOS_BLOQUE(Act), CAMPO(D2, ElMismoAct),  // 11 to 22
        CAMPOS_BLOQUE(Soc), CAMPO(D2, ElMismoSoc),  // 23 to 34
        CAMPOS_BLOQUE(Not), CAMPO(D2, ElMismoNot),  // 35 to 46
    };
    ASSERT_EQ(TablaApartado2().size(), 47U);
    comprobarPosiciones(TablaApartado2(), campos);
}

TEST(Posiciones, Apartado3) {
    const std::vector<Campo<D3>> campos = {
        CAMPO(D3, ResidenteKelmaria),
        CAMPO(D3, PorcenDeduccion),
        CAMPO(D3, FechaInicio),
        CAMPO(D3, ActivEcon),
        CAMPO(D3, ListaEpigrafe),
        CAMPO(D3, CodigoFormaJuridica),
        CAMPO(D3, DescripcionFormaJuridica),
        CAMPO(D3, Anagrama),
        CAMPO(D3, FechaCierre),
        CAMPO(D3, SocPat),
        CAMPO(D3, IdiomaPref),
        CAMPO(D3, MedioPref),
        CAMPO(D3, Correo),
        CAMPO(D3, DirCorreo),
        CAMPO(D3, Fax),
        CAMPO(D3, numFax),
        CAMPO(D3, Movil),
        CAMPO(D3, numMovil),
        CAMPO(D3, Fijo),
        CAMPO(D3, numFijo),
        CAMPO(D3, Consentimiento),
        CAMPO(D3, Revocacion),
        CAMPO(D3, ActVenMov),
    };
    ASSERT_EQ(TablaApartado3().size(), 23U);
    comprobarPosiciones(TablaApartado3(), campos);
}

TEST(Posiciones, Apartado4) {
    const std::vector<Campo<D4>> campos = {
        CAMPO(D4, IRPFOBJET),   CAMPO(D4, IRPFDIRECT), CAMPO(D4, IVAAGRIC),
        CAMPO(D4, IVASIMPLIF),  CAMPO(D4, IVAEXPORT),  CAMPO(D4, IVAEXPORTINTRA),
        CAMPO(D4, IVAAGENCIAS), CAMPO(D4, IVABIENES),  CAMPO(D4, IVASOCIO),
        CAMPO(D4, NIF),         CAMPO(D4, NOMBRE),     CAMPO(D4, SONF),
        CAMPO(D4, IVACAJA),     CAMPO(D4, IVACUOADU),
    };
    ASSERT_EQ(TablaApartado4().size(), 14U);
    comprobarPosiciones(TablaApartado4(), campos);
}

TEST(Posiciones, Apartado5) {
    const std::vector<Campo<R5>> campos = {
        CAMPO(R5, GRANEMPRESA),
        CAMPO(R5, SOCIEDADES),  // 0
        CAMPO(R5, ADMINISTRACIONES),
        CAMPO(R5, EXENTASOCI),  // 2
        CAMPO(R5, ART117),
        CAMPO(R5, COOPERATIVA),  // 4
        CAMPO(R5, CONSOLIDACION),
        CAMPO(R5, DOMINANTE),  // 6
        CAMPO(R5, SATISRENDTRAB),
        CAMPO(R5, SATISRENDARREN),  // 8
        CAMPO(R5, IRPFDIRECTA),
        CAMPO(R5, IRPFOBJETIVA),  // 10
        CAMPO(R5, IRPFDIRECTSIMPLIF),
        CAMPO(R5, IVA),  // 12
        CAMPO(R5, GENERAL),
        CAMPO(R5, RECARGO),  // 14
        CAMPO(R5, AGENCIASOPERACION),
        CAMPO(R5, AGENCIASGLOBAL),  // 16
        CAMPO(R5, BIENESUSADOS),
        CAMPO(R5, BIENESMARGEN),  // 18
        CAMPO(R5, Agric),
        CAMPO(R5, SIMPLIF),  // 20
        CAMPO(R5, OPEXSINDCHO),
        CAMPO(R5, NORECARGO),  // 22
        CAMPO(R5, NOAGRIC),
        CAMPO(R5, NOEXENTAS),  // 24
        CAMPO(R5, NOCONCIERTO),
        CAMPO(R5, IVACAJA),  // 26
    };
    ASSERT_EQ(TablaApartado5().size(), 28U);
    comprobarPosiciones(TablaApartado5(), campos);
}

TEST(Posiciones, Apartado6) {
    const std::vector<Campo<D6>> campos = {CAMPO(D6, FECHACESE), CAMPO(D6, CAUSA),
                                           CAMPO(D6, DESCRIPCIONCAUSA),
                                           CAMPO(D6, FechaInscripcion)};
    ASSERT_EQ(TablaApartado6().size(), 4U);
    comprobarPosiciones(TablaApartado6(), campos);
}

struct EstadoMiembro {
    const char16_t* estado;
    int sufijo;
};
// In the order of the form; the suffix, not the row, decides the position.
const EstadoMiembro Estados[] = {
    {u"Alemania", 1},      {u"Austria", 2},          {u"Bélgica", 3},     {u"Bulgaria", 25},
    {u"Croacia", 26},      {u"Chipre", 4},           {u"Dinamarca", 5},   {u"Eslovaquia", 6},
    {u"Eslovenia", 7},     {u"Estonia", 8},          {u"Finlandia", 9},   {u"Grecia", 10},
    {u"Francia", 11},      {u"Hungria", 12},         {u"Irlanda", 13},    {u"Italia", 14},
    {u"Letonia", 15},      {u"Lituania", 16},        {u"Luxemburgo", 17}, {u"Malta", 18},
    {u"Paises Bajos", 19}, {u"Polonia", 20},         {u"Portugal", 21},   {u"Reino Unido", 22},
    {u"Rumanía", 27},      {u"Republica Checa", 23}, {u"Suecia", 24},
};

TEST(Posiciones, EstadosDelApartado7) {
    const auto tabla = TablaApartado7();
    ASSERT_EQ(tabla.size(), 59U);
    ASSERT_EQ(std::size(Estados), NumEstadosMiembros);
    for (const auto& e : Estados) {
        SCOPED_TRACE(QString::fromUtf16(e.estado).toStdString());
        const auto indice = static_cast<std::size_t>(e.sufijo) - 1;
        const std::size_t limite = 2 * indice;
        EXPECT_EQ(QString::fromUtf16(tabla[limite].nombre),
                  QStringLiteral("LimSupPais%1").arg(e.sufijo));
        EXPECT_EQ(QString::fromUtf16(tabla[limite + 1].nombre),
                  QStringLiteral("DestRevocPais%1").arg(e.sufijo));
        D7 datos, esperado;
        esperado.LimSupPais[indice] = q(u"S");
        esperado.DestRevocPais[indice] = q(u"D");
        tabla[limite].escribir(datos, q(u"S"));
        tabla[limite + 1].escribir(datos, q(u"D"));
        EXPECT_TRUE(datos == esperado);
    }
}

TEST(Posiciones, RestoDelApartado7) {
    const std::vector<Campo<D7>> campos = {CAMPO(D7, Agric), CAMPO(D7, Exentos),
                                           CAMPO(D7, NoEmpresarios), CAMPO(D7, MasLimEuros),
                                           CAMPO(D7, TributDestino)};
    comprobarPosiciones(TablaApartado7().subspan(54), campos);
}

TEST(Posiciones, AnexoII) {
    const std::vector<Campo<DA>> campos = {
        CAMPO(DA, DireccionDom),
        CAMPO(DA, PoblacionDom),
        CAMPO(DA, Nacionalidad),
        CAMPO(DA, FormaJuridica),
        CAMPO(DA, TerritorioHistorico),
        CAMPO(DA, ModalidadEstablecimiento),
        CAMPO(DA, OtrosEstablecimientos),
        CAMPO(DA, NIFRepresentante),
        CAMPO(DA, NombreRepresentante),
        CAMPO(DA, NacionalidadRepresentante),
        CAMPO(DA, DomicilioRepresentante),
        CAMPO(DA, CodigoMunicipio),
        CAMPO(DA, NombreMunicipio),
        CAMPO(DA, CodigoProvincia),
        CAMPO(DA, Obligado),
        CAMPO(DA, Establecimientos),
        CAMPO(DA, Aplicacion),
        CAMPO(DA, OpcionApl),
        CAMPO(DA, PORCENTAJE),
    };
    ASSERT_EQ(TablaAnexoII().size(), 19U);
    comprobarPosiciones(TablaAnexoII(), campos);
}

TEST(Posiciones, Participe) {
    const std::vector<Campo<DP>> campos = {
        CAMPO(DP, cspa),      CAMPO(DP, csde),      CAMPO(DP, DNI),        CAMPO(DP, NOMBRE),
        CAMPO(DP, SiglasDom), CAMPO(DP, NombreVia), CAMPO(DP, Numero),     CAMPO(DP, Letra),
        CAMPO(DP, Escalera),  CAMPO(DP, Piso),      CAMPO(DP, Mano),       CAMPO(DP, Telefono),
        CAMPO(DP, CodPostal), CAMPO(DP, CodMun),    CAMPO(DP, NombMun),    CAMPO(DP, PorcenPart),
        CAMPO(DP, EdIRPF),    CAMPO(DP, EqIRPF),    CAMPO(DP, SimplifIVA), CAMPO(DP, Agric),
    };
    ASSERT_EQ(TablaParticipe().size(), 20U);
    comprobarPosiciones(TablaParticipe(), campos);
}

TEST(IdaYVuelta, TodosLosRegistros) {
    comprobarIdaYVuelta(TablaApartado2());
    comprobarIdaYVuelta(TablaApartado3());
    comprobarIdaYVuelta(TablaApartado4());
    comprobarIdaYVuelta(TablaApartado5());
    comprobarIdaYVuelta(TablaApartado6());
    comprobarIdaYVuelta(TablaApartado7());
    comprobarIdaYVuelta(TablaAnexoII());
    comprobarIdaYVuelta(TablaParticipe());
}

/// Width of a fixed text by record and name; texts not listed are of variable length.
TEST(IdaYVuelta, AnchosFijos) {
    EXPECT_EQ(decltype(D4::NIF)::Ancho, 9);
    EXPECT_EQ(decltype(D4::NOMBRE)::Ancho, 40);
    EXPECT_EQ(decltype(D6::DESCRIPCIONCAUSA)::Ancho, 20);
    EXPECT_EQ(decltype(DP::DNI)::Ancho, 9);
    EXPECT_EQ(decltype(DP::NOMBRE)::Ancho, 30);
    EXPECT_EQ(decltype(DP::SiglasDom)::Ancho, 2);
    EXPECT_EQ(decltype(DP::NombreVia)::Ancho, 30);
    EXPECT_EQ(decltype(DP::Letra)::Ancho, 2);
    EXPECT_EQ(decltype(DP::Escalera)::Ancho, 2);
    EXPECT_EQ(decltype(DP::Piso)::Ancho, 2);
    EXPECT_EQ(decltype(DP::Mano)::Ancho, 3);
}

TEST(IdaYVuelta, VacioYBlancoSonDistintosEnTextoVariable) {
    for (const auto* texto : {u"", u" "}) {
        D7 d7;
        DA anexo;
        D2 d2;
        TablaApartado7()[54].escribir(d7, q(texto));
        TablaAnexoII()[0].escribir(anexo, q(texto));
        TablaApartado2()[22].escribir(d2, q(texto));
        EXPECT_EQ(d7.Agric, q(texto));
        EXPECT_EQ(anexo.DireccionDom, q(texto));
        EXPECT_EQ(d2.ElMismoAct, q(texto));
    }
}

}  // namespace
}  // namespace padral::pruebas
