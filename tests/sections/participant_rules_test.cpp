// The twelve rules of a participant.

#include "participants/participant_rules.h"

#include "sections/tax_changes.h"

namespace padral::pruebas {
namespace {

using P = DatosParticipe;

/// Participants that break no rule, in the territory's own province and in another one.
P enPropia() {
    P p;
    p.DNI = q(u"12345678Z");
    p.NOMBRE = q(u"LASA JON");
    p.SiglasDom = q(u"CL");
    p.DESCRIPCIONVIA = q(u"Calle");
    p.NombreVia = q(u"MAYOR");
    p.CodigoProvincia = 20;
    p.NombreProvincia = q(u"Kelmaria");
    p.CodPostal = 20001;
    p.CodMun = 1;
    p.NombMun = q(u"Aldabarri");
    p.PorcenPart = 33.25F;
    return p;
}
P enOtra() {
    P p = enPropia();
    p.CodigoProvincia = 28;
    p.NombreProvincia = q(u"Madrid");
    p.CodPostal = 28001;
    p.CodMun = 0;
    p.NombMun = q(u"POBLADO");
    return p;
}
/// Province and postal code of another province.
P postal(qint16 provincia, qint32 codigo) {
    P p = enOtra();
    p.CodigoProvincia = provincia;
    p.CodPostal = codigo;
    return p;
}
P con(P p, void (*cambiar)(P&)) {
    cambiar(p);
    return p;
}

const std::vector<AvisoEsperado> Vale;
const std::vector<AvisoEsperado> SinDni{{360, 125, u"", u"txtDNI"}};
const std::vector<AvisoEsperado> DniMalo{{388, 389, u"", u"txtDNI"}};
const std::vector<AvisoEsperado> SinNombre{{361, 125, u"", u"txtNombre"}};
const std::vector<AvisoEsperado> SinVia{{362, 125, u"", u"txtSiglas"}};
const std::vector<AvisoEsperado> SinCalle{{363, 125, u"", u"txtDomicilio"}};
const std::vector<AvisoEsperado> SinProvincia{{364, 125, u"", u"txtCodProvincia"}};
const std::vector<AvisoEsperado> SinMunicipio{{365, 125, u"", u"txtMunicipio"}};
const std::vector<AvisoEsperado> SinMunicipioPropio{{365, 125, u"", u"txtCodMunicipio"}};
const std::vector<AvisoEsperado> PostalCorto{{120, 121, u"", u"txtCodigoPostal"}};
const std::vector<AvisoEsperado> PostalAjeno{{366, 125, u"", u"txtCodigoPostal"}};
const std::vector<AvisoEsperado> PostalEnCeros{{367, 125, u"", u"txtCodigoPostal"}};
const std::vector<AvisoEsperado> SinCodMunicipio{{368, 125, u"", u"txtCodMunicipio"}};
const std::vector<AvisoEsperado> SinPorcentaje{{369, 125, u"", u"txtPorcentaje"}};

struct ReglasParticipeTest : testing::Test {
    bool valido = true;
    std::vector<QString> preguntados;
    ServidorNif servidor = [this](const QString& nif) {
        preguntados.push_back(nif);
        return valido;
    };
};

struct Caso {
    const char* que;
    P participe;
    std::vector<AvisoEsperado> avisos;
};

TEST_F(ReglasParticipeTest, CadaUnaConSusVecinos) {
    const Caso casos[] = {
        {"own province", enPropia(), Vale},
        {"other province", enOtra(), Vale},
        {"1: empty", con(enOtra(), [](P& p) { p.DNI = q(u""); }), SinDni},
        {"1: blanks", con(enOtra(), [](P& p) { p.DNI = q(u"   "); }), SinDni},
        {"1: anything", con(enOtra(), [](P& p) { p.DNI = q(u"1"); }), Vale},
        {"3: empty", con(enOtra(), [](P& p) { p.NOMBRE = q(u""); }), SinNombre},
        {"3: blanks", con(enOtra(), [](P& p) { p.NOMBRE = q(u"  "); }), SinNombre},
        {"3: a letter", con(enOtra(), [](P& p) { p.NOMBRE = q(u"A"); }), Vale},
        {"4: empty", con(enOtra(), [](P& p) { p.DESCRIPCIONVIA.clear(); }), SinVia},
        {"4: blanks", con(enPropia(), [](P& p) { p.DESCRIPCIONVIA = q(u" "); }), SinVia},
        {"4: no code", con(enOtra(), [](P& p) { p.SiglasDom = q(u""); }), Vale},
        {"5: empty", con(enOtra(), [](P& p) { p.NombreVia = q(u""); }), SinCalle},
        {"5: blanks", con(enPropia(), [](P& p) { p.NombreVia = q(u"  "); }), SinCalle},
        {"5: a letter", con(enOtra(), [](P& p) { p.NombreVia = q(u"A"); }), Vale},
        {"6: empty", con(enOtra(), [](P& p) { p.NombreProvincia.clear(); }), SinProvincia},
        {"6: blanks", con(enPropia(), [](P& p) { p.NombreProvincia = q(u" "); }), SinProvincia},
        {"6: a letter", con(enOtra(), [](P& p) { p.NombreProvincia = q(u"A"); }), Vale},
        {"7: empty", con(enOtra(), [](P& p) { p.NombMun.clear(); }), SinMunicipio},
        {"7: blanks", con(enOtra(), [](P& p) { p.NombMun = q(u" "); }), SinMunicipio},
        {"7: a letter", con(enOtra(), [](P& p) { p.NombMun = q(u"A"); }), Vale},
        {"7: own", con(enPropia(), [](P& p) { p.NombMun.clear(); }), SinMunicipioPropio},
        {"8: none", postal(28, 0), PostalCorto},
        {"8: a digit", postal(5, 5), PostalCorto},
        {"8: three digits", postal(1, 999), PostalCorto},
        {"8: four digits", postal(1, 1001), Vale},
        {"9: 28 with 20001", postal(28, 20001), PostalAjeno},
        {"9: 28 with 27999", postal(28, 27999), PostalAjeno},
        {"9: 28 with 28999", postal(28, 28999), Vale},
        {"9: 28 with 29001", postal(28, 29001), PostalAjeno},
        {"9: own with 28001", con(enPropia(), [](P& p) { p.CodPostal = 28001; }), PostalAjeno},
        {"9: 1 with 1005", postal(1, 1005), Vale},
        {"9: 1 with 10050", postal(1, 10050), Vale},
        {"9: 1 with 19005", postal(1, 19005), Vale},
        {"9: 1 with 2005", postal(1, 2005), PostalAjeno},
        {"9: 2 with 1005", postal(2, 1005), PostalAjeno},
        {"9: 10 with 1005", postal(10, 1005), Vale},
        {"9: 10 with 10005", postal(10, 10005), Vale},
        {"9: none with 28001", postal(0, 28001), PostalAjeno},
        {"10: 28000", postal(28, 28000), PostalEnCeros},
        {"10: 1000", postal(1, 1000), PostalEnCeros},
        {"10: 20000", con(enPropia(), [](P& p) { p.CodPostal = 20000; }), PostalEnCeros},
        {"10: 28001", postal(28, 28001), Vale},
        {"10: 28010", postal(28, 28010), Vale},
        {"10: 28100", postal(28, 28100), Vale},
        {"11: own", con(enPropia(), [](P& p) { p.CodMun = 0; }), SinCodMunicipio},
        {"11: own, one", con(enPropia(), [](P& p) { p.CodMun = 1; }), Vale},
        {"11: own, 999", con(enPropia(), [](P& p) { p.CodMun = 999; }), Vale},
        {"11: other", con(enOtra(), [](P& p) { p.CodMun = 0; }), Vale},
        {"12: none", con(enOtra(), [](P& p) { p.PorcenPart = 0; }), SinPorcentaje},
        {"12: the least", con(enOtra(), [](P& p) { p.PorcenPart = 0.01F; }), Vale},
        {"12: all of it", con(enOtra(), [](P& p) { p.PorcenPart = 100; }), Vale},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.que);
        comprobarAvisos(RevisarParticipe(caso.participe, servidor), caso.avisos);
    }
}

TEST_F(ReglasParticipeTest, ElNifLoMiraElServidor) {
    P p = enOtra();
    p.DNI = q(u" 1234567L");
    comprobarAvisos(RevisarParticipe(p, servidor), Vale);
    EXPECT_EQ(preguntados, std::vector<QString>{q(u"1234567L")});
    valido = false;
    comprobarAvisos(RevisarParticipe(p, servidor), DniMalo);
}

TEST_F(ReglasParticipeTest, PorUnoVacioNoSePregunta) {
    P p = enOtra();
    p.DNI = q(u"");
    valido = false;
    comprobarAvisos(RevisarParticipe(p, servidor), SinDni);
    EXPECT_TRUE(preguntados.empty());
}

// Whatever else is missing, only the first is told.
TEST_F(ReglasParticipeTest, SeParaEnLaPrimera) {
    P p;
    p.CodigoProvincia = 20;
    p.CodMun = 0;
    const auto espera = [&](const std::vector<AvisoEsperado>& avisos) {
        comprobarAvisos(RevisarParticipe(p, servidor), avisos);
    };
    valido = false;
    espera(SinDni);
    p.DNI = q(u"12345678Z");
    espera(DniMalo);
    valido = true;
    espera(SinNombre);
    p.NOMBRE = q(u"LASA JON");
    espera(SinVia);
    p.DESCRIPCIONVIA = q(u"Calle");
    espera(SinCalle);
    p.NombreVia = q(u"MAYOR");
    espera(SinProvincia);
    p.NombreProvincia = q(u"Kelmaria");
    espera(SinMunicipioPropio);
    p.NombMun = q(u"Aldabarri");
    espera(PostalCorto);
    p.CodPostal = 28000;
    espera(PostalAjeno);
    p.CodPostal = 20000;
    espera(PostalEnCeros);
    p.CodPostal = 20001;
    espera(SinCodMunicipio);
    p.CodMun = 1;
    espera(SinPorcentaje);
    p.PorcenPart = 0.01F;
    espera(Vale);
}

TEST_F(ReglasParticipeTest, SonDoceEnSuOrden) {
    const std::pair<int, int> esperadas[] = {{360, 125}, {388, 389}, {361, 125}, {362, 125},
                                             {363, 125}, {364, 125}, {365, 125}, {120, 121},
                                             {366, 125}, {367, 125}, {368, 125}, {369, 125}};
    const auto reglas = ReglasParticipe();
    ASSERT_EQ(reglas.size(), std::size(esperadas));
    for (std::size_t i = 0; i < reglas.size(); ++i) {
        EXPECT_EQ(reglas[i].numero, static_cast<int>(i) + 1);
        EXPECT_EQ(reglas[i].aviso.texto, esperadas[i].first);
        EXPECT_EQ(reglas[i].aviso.titulo, esperadas[i].second);
    }
    EXPECT_EQ(MaximoParticipes, 100);
}

}  // namespace
}  // namespace padral::pruebas
