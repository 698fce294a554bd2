// The rules of Annex II.

#include "sections/tax/annex2_rules.h"

#include "sections/tax_changes.h"

namespace padral::pruebas {
namespace {

struct ReglaEsperada {
    int numero;
    AvisoEsperado aviso;
    ListaAnexoII lista = ListaAnexoII::Ninguna;
};
const ReglaEsperada Nada{1, {281, 125}};
const ReglaEsperada SinDireccion{2, {114, 115, u"", u"txtDomicilio"}};
const ReglaEsperada SinPoblacion{3, {134, 119, u"", u"txtNombreMunicipio"}};
const ReglaEsperada SinNacionalidad{4, {728, 729, u"", u"txtNacionalidad"}};
const ReglaEsperada SinModalidad{5, {730, 731, u"", u"chkCierra"}};
const ReglaEsperada SinNif{6, {738, 739, u"", u"txtNIF"}};
const ReglaEsperada NifMalo{7, {545, 158, u"", u"txtNIF"}};
const ReglaEsperada SinNombre{8, {734, 735, u"", u"txtNombre"}};
const ReglaEsperada SinDomicilio{9, {732, 733, u"", u"txtRepDomicilio"}};
const ReglaEsperada SinProvincia{10, {744, 745}, ListaAnexoII::Provincias};
const ReglaEsperada SinMunicipio{11, {740, 741, u"", u"txtNombreMunRepr"}};
const ReglaEsperada SinMunicipioPropio{11, {740, 741}, ListaAnexoII::Municipios};
const ReglaEsperada SinOpcion{12, {742, 743, u"", u"txtNombreMunRepr"}};
const ReglaEsperada MascaraVacia{13, {386, 387, u"", u"numPorcentaje"}};
const ReglaEsperada PorcentajeCero{14, {386, 387, u"", u"numPorcentaje"}};
const ReglaEsperada PorcentajeAlto{15, {695, 387, u"", u"numPorcentaje"}};

/// Values as "Propiedad=valor"; the name of the province is not in the store's table.
DatosAnexoII anexo(const char16_t* texto) {
    DatosAnexoII datos;
    for (const auto& [nombre, valor] : pares(texto))
        if (nombre == QStringView(u"NombreProvincia"))
            datos.NombreProvincia = valor;
        else
            TablaAnexoII()[posicion(TablaAnexoII(), nombre)].escribir(datos, valor);
    return datos;
}
constexpr auto Domicilio = u"DireccionDom=CALLE PoblacionDom=CIUDAD Nacionalidad=PAIS";
constexpr auto Representante =
    u"NIFRepresentante=12345678Z NombreRepresentante=PERSONA DomicilioRepresentante=CALLE "
    u"NombreProvincia=Madrid NombreMunicipio=VILLA";

struct ReglasAnexo : testing::Test {
    bool nifValido = true;
    std::vector<QString> preguntados;
    ServidorNif servidor = [this](const QString& nif) {
        preguntados.push_back(nif);
        return nifValido;
    };
    qint32 provincia = 28;
    bool revocacion = false;
    QString porcentaje = q(u"0");

    const ReglaAnexoII* rota(const DatosAnexoII& datos) {
        preguntados.clear();
        return ValidarAnexoII({datos, provincia, revocacion, porcentaje, servidor});
    }
    const ReglaAnexoII* rota(const char16_t* texto) { return rota(anexo(texto)); }

    void espera(const DatosAnexoII& datos, const ReglaEsperada& regla) {
        const ReglaAnexoII* una = rota(datos);
        ASSERT_NE(una, nullptr);
        EXPECT_EQ(una->numero, regla.numero);
        comprobarAvisos({{una->aviso}}, {regla.aviso});
        EXPECT_EQ(una->lista, regla.lista);
    }
    void espera(const char16_t* texto, const ReglaEsperada& regla) {
        SCOPED_TRACE(s(texto));
        espera(anexo(texto), regla);
    }
    void vale(const char16_t* texto) { EXPECT_EQ(rota(texto), nullptr) << s(texto); }
};

TEST_F(ReglasAnexo, SinNingunDatoNoHayAnexo) {
    for (const auto* texto : {u"", u"PORCENTAJE=50", u"ModalidadEstablecimiento=A",
                              u"Establecimientos=S", u"CodigoProvincia=20 CodigoMunicipio=1"})
        espera(texto, Nada);
}

// Any of the fifteen is a datum, though it may ask for others.
TEST_F(ReglasAnexo, CadaDatoCuenta) {
    const std::pair<const char16_t*, const ReglaEsperada*> casos[] = {
        {u"DireccionDom=CALLE", &SinPoblacion},      {u"PoblacionDom=CIUDAD", &SinDireccion},
        {u"Nacionalidad=PAIS", &SinDireccion},       {u"FormaJuridica=SOCIEDAD", &SinDireccion},
        {u"TerritorioHistorico=S", &SinModalidad},   {u"DomicilioRepresentante=CALLE", &SinNif},
        {u"NombreRepresentante=PERSONA", &SinNif},   {u"NacionalidadRepresentante=PAIS", &SinNif},
        {u"NIFRepresentante=12345678Z", &SinNombre}, {u"NombreMunicipio=VILLA", &SinNif},
        {u"NombreProvincia=Madrid", &SinNif},        {u"Obligado=S", &SinOpcion},
    };
    for (const auto& [texto, regla] : casos) espera(texto, *regla);
    for (const auto* texto : {u"TerritorioHistorico=N", u"Obligado=N", u"OpcionApl=O",
                              u"OpcionApl=R", u"OtrosEstablecimientos=S", u"Aplicacion=S"})
        vale(texto);
}

TEST_F(ReglasAnexo, ElDomicilioVaEntero) {
    vale(Domicilio);
    vale(u"DireccionDom=CALLE PoblacionDom=CIUDAD Nacionalidad=PAIS FormaJuridica=SOCIEDAD");
    espera(u"PoblacionDom=CIUDAD Nacionalidad=PAIS", SinDireccion);
    espera(u"PoblacionDom=CIUDAD Nacionalidad=PAIS FormaJuridica=SOCIEDAD", SinDireccion);
    espera(u"FormaJuridica=SOCIEDAD Aplicacion=S", SinDireccion);
    espera(u"DireccionDom=CALLE Nacionalidad=PAIS", SinPoblacion);
    espera(u"DireccionDom=CALLE FormaJuridica=SOCIEDAD", SinPoblacion);
    espera(u"DireccionDom=CALLE PoblacionDom=CIUDAD", SinNacionalidad);
    espera(u"DireccionDom=CALLE PoblacionDom=CIUDAD FormaJuridica=SOCIEDAD", SinNacionalidad);
}

TEST_F(ReglasAnexo, ElEstablecimientoDiceDeQueClaseEs) {
    espera(u"TerritorioHistorico=S", SinModalidad);
    for (const auto* texto : {u"TerritorioHistorico=S ModalidadEstablecimiento=A",
                              u"TerritorioHistorico=S ModalidadEstablecimiento=B",
                              u"TerritorioHistorico=S ModalidadEstablecimiento=C",
                              u"TerritorioHistorico=N", u"Aplicacion=S"})
        vale(texto);
}

TEST_F(ReglasAnexo, ElRepresentanteVaEntero) {
    const struct {
        const char16_t* falta;
        const ReglaEsperada* regla;
    } casos[] = {{u"NIFRepresentante=", &SinNif},
                 {u"NombreRepresentante=", &SinNombre},
                 {u"DomicilioRepresentante=", &SinDomicilio},
                 {u"NombreProvincia=", &SinProvincia},
                 {u"NombreMunicipio=", &SinMunicipio}};
    const auto con = [&](const char16_t* mas) {
        return anexo((q(Representante) + u' ' + q(mas)).toStdU16String().c_str());
    };
    EXPECT_EQ(rota(con(u"")), nullptr);
    EXPECT_EQ(rota(con(u"NacionalidadRepresentante=PAIS")), nullptr) << "it may be missing";
    for (const auto& [falta, regla] : casos) {
        SCOPED_TRACE(s(falta));
        espera(con(falta), *regla);
    }
}

TEST_F(ReglasAnexo, ElNifDelRepresentanteSeComprueba) {
    nifValido = false;
    espera(u"NIFRepresentante=12345678A", NifMalo);
    EXPECT_EQ(preguntados, std::vector<QString>{q(u"12345678A")});
    espera(u"NombreRepresentante=PERSONA", SinNif);
    EXPECT_TRUE(preguntados.empty()) << "nothing to ask for";
    vale(Domicilio);
    EXPECT_TRUE(preguntados.empty());
    nifValido = true;
    espera(u"NIFRepresentante=12345678A", SinNombre);
    EXPECT_EQ(preguntados, std::vector<QString>{q(u"12345678A")});
}

// By what the field of the province shows, not by the record.
TEST_F(ReglasAnexo, SinMunicipioDecideLaProvinciaDelCampo) {
    const auto texto =
        u"NIFRepresentante=12345678Z NombreRepresentante=PERSONA DomicilioRepresentante=CALLE "
        u"NombreProvincia=Kelmaria CodigoProvincia=20 CodigoMunicipio=1";
    for (const qint32 otra : {0, 19, 21, 28}) {
        provincia = otra;
        espera(texto, SinMunicipio);
    }
    provincia = 20;
    espera(texto, SinMunicipioPropio);
    DatosAnexoII datos = anexo(texto);
    datos.CodigoProvincia = 28;
    espera(datos, SinMunicipioPropio);
    datos.NombreMunicipio = q(u"Aldabarri");
    EXPECT_EQ(rota(datos), nullptr);
}

TEST_F(ReglasAnexo, ElObligadoContestaALaOpcion) {
    espera(u"Obligado=S", SinOpcion);
    for (const auto* texto :
         {u"Obligado=S Establecimientos=S", u"Obligado=S Establecimientos=N", u"Obligado=N"})
        vale(texto);
}

TEST_F(ReglasAnexo, LaRevocacionPideUnPorcentaje) {
    const std::pair<const char16_t*, const ReglaEsperada*> casos[] = {
        {u",", &MascaraVacia},     {u" , ", &MascaraVacia},    {u"", &PorcentajeCero},
        {u"0", &PorcentajeCero},   {u"  ", &PorcentajeCero},   {u"101", &PorcentajeAlto},
        {u"999", &PorcentajeAlto}, {u"32767", &PorcentajeAlto}};
    for (const auto& [escrito, regla] : casos) {
        SCOPED_TRACE(s(escrito));
        porcentaje = q(escrito);
        revocacion = true;
        espera(u"OpcionApl=R", *regla);
        revocacion = false;
        vale(u"OpcionApl=R");
    }
    revocacion = true;
    for (const auto* escrito : {u"1", u"50", u"100"}) {
        porcentaje = q(escrito);
        vale(u"OpcionApl=R PORCENTAJE=101");
    }
}

// One record breaks them all; each step mends the first broken one.
TEST_F(ReglasAnexo, ElOrdenEsElDeLaLista) {
    const struct {
        const char16_t* arreglo;
        const ReglaEsperada* siguiente;
    } pasos[] = {{u"TerritorioHistorico=S Obligado=S FormaJuridica=SOCIEDAD", &SinDireccion},
                 {u"DireccionDom=CALLE NacionalidadRepresentante=PAIS", &SinPoblacion},
                 {u"PoblacionDom=CIUDAD", &SinNacionalidad},
                 {u"Nacionalidad=PAIS", &SinModalidad},
                 {u"ModalidadEstablecimiento=C", &SinNif},
                 {u"NIFRepresentante=12345678A", &NifMalo},
                 {u"NIFRepresentante=12345678Z", &SinNombre},
                 {u"NombreRepresentante=PERSONA", &SinDomicilio},
                 {u"DomicilioRepresentante=CALLE", &SinProvincia},
                 {u"NombreProvincia=Madrid", &SinMunicipio},
                 {u"NombreMunicipio=VILLA", &SinOpcion},
                 {u"Establecimientos=N", &MascaraVacia}};
    servidor = [](const QString& nif) { return nif == QStringView(u"12345678Z"); };
    revocacion = true;
    porcentaje = q(u",");
    QString texto;
    espera(u"", Nada);
    for (const auto& [arreglo, siguiente] : pasos) {
        texto += u' ' + q(arreglo);
        SCOPED_TRACE(s(arreglo));
        espera(anexo(texto.toStdU16String().c_str()), *siguiente);
    }
}

TEST_F(ReglasAnexo, SonQuinceEnSuOrden) {
    int numero = 0;
    for (const auto& regla : ReglasAnexoII()) {
        EXPECT_TRUE(regla.numero == numero || regla.numero == numero + 1) << regla.numero;
        numero = regla.numero;
    }
    EXPECT_EQ(numero, 15);
}

}  // namespace
}  // namespace padral::pruebas
