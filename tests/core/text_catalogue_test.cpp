// The catalogue that is compiled in, and the form of its table.

#include "core/text_catalogue.h"

#include <gtest/gtest.h>

#include <QFile>
#include <set>

#include "support/print_text.h"

namespace padral {
namespace {

const CatalogoTextos& textos() {
    static const CatalogoTextos catalogo;
    return catalogo;
}

struct TextoDado {
    int id;
    QString texto;
};

/// Split at tabs only: blanks at both ends belong to a text.
std::vector<TextoDado> textosDados() {
    QFile fichero(QStringLiteral(PADRAL_SOURCE_DIR "/tests/core/given_texts.tsv"));
    if (!fichero.open(QIODevice::ReadOnly)) return {};
    std::vector<TextoDado> dados;
    const auto lineas = QString::fromUtf8(fichero.readAll()).split(u'\n');
    for (qsizetype i = 1; i < lineas.size(); ++i)
        if (!lineas[i].isEmpty())
            dados.push_back({lineas[i].section(u'\t', 0, 0).toInt(), lineas[i].section(u'\t', 1)});
    return dados;
}

TEST(Catalogo, LosTextosDadosSonExactos) {
    const auto dados = textosDados();
    ASSERT_EQ(dados.size(), 513U);
    for (const auto& dado : dados) EXPECT_EQ(textos().Texto(dado.id), dado.texto) << dado.id;
}

const std::set<int> NingunIdioma = {84,  85,  382, 383, 384, 533, 540,
                                    541, 542, 543, 634, 635, 636, 637};
const std::set<int> SoloCastellano = {638, 639, 640};
constexpr int SoloEuskera = 152;

TEST(Catalogo, TieneTodasLasEntradasYSusHuecos) {
    for (int id = 1; id <= 881; ++id) {
        const bool falta = NingunIdioma.count(id) != 0;
        EXPECT_EQ(textos().Existe(id), !falta && id != SoloEuskera) << id;
        EXPECT_EQ(textos().Existe(id + 10000), !falta && SoloCastellano.count(id) == 0) << id;
    }
    EXPECT_EQ(textos().CuentaCastellano(), 866);
    EXPECT_EQ(textos().CuentaEuskera(), 864);
}

TEST(Catalogo, PedirUnaEntradaQueNoExisteEsUnError) {
    std::vector<int> ausentes = {-1,    0,   882,   9999,  10000, 10638, 10639,
                                 10640, 152, 10882, 20000, 32767, -10000};
    for (const int id : NingunIdioma) ausentes.insert(ausentes.end(), {id, id + 10000});
    for (const int id : ausentes) {
        EXPECT_FALSE(textos().Existe(id)) << id;
        EXPECT_THROW(textos().Texto(id), TextoAusente) << id;
    }
}

TEST(Catalogo, ElErrorDiceQueTexto) {
    try {
        textos().Texto(10382);
        FAIL();
    } catch (const TextoAusente& ausente) {
        EXPECT_NE(std::string(ausente.what()).find("10382"), std::string::npos);
    }
}

const TextoDado Citados[] = {
    {2, QStringLiteral("                  SI")},
    {10002, QStringLiteral("                  BAI")},
    {449, QStringLiteral("Error")},
    {10449, QStringLiteral("Akatsa")},
    {125, QStringLiteral("Datos no válidos")},
    {10125, QStringLiteral("Datuak ez dira baliagarriak")},
    {331, QStringLiteral(" ==>")},
    {10331, QStringLiteral(" ==>")},
    {650, QStringLiteral("##/##/####")},
    {10650, QStringLiteral("####/##/##")},
    {651, QStringLiteral("dd/mm/yyyy")},
    {10651, QStringLiteral("yyyy/mm/dd")},
    {652, QStringLiteral("La fecha introducida debe estar en el intervalo ")},
    {653, QStringLiteral(" y ")},
    {654, QStringLiteral(".")},
    {10652, QStringLiteral("Data ")},
    {10653, QStringLiteral(" eta ")},
    {10654, QStringLiteral(" bitartean egongo da.")},
    {575, QStringLiteral(" declaración(es) en la lista. ")},
    {638, QStringLiteral("Utilidades")},
    {639, QStringLiteral("&Hizkuntza aukeratu")},
    {640, QStringLiteral("&Laguntza")},
    {10152, QStringLiteral("*")},
    {158, QStringLiteral("NIF no válido")},
    {483, QStringLiteral("Apartados no rellenados")},
    {75, QStringLiteral("Fallo en la validación")},
    {83, QStringLiteral("Fallo en el apartado")},
    {86, QStringLiteral("Fallo en la fecha")},
    {123, QStringLiteral("Error en relación de datos")},
    {381, QStringLiteral("Fallo en el porcentaje")},
    {465, QStringLiteral("Fecha de modificación no válida")},
    {510, QStringLiteral("Apartado 5 vacio")},
    {545, QStringLiteral("El NIF introducido no es válido")},
    {703, QStringLiteral("Error")},
};

TEST(Catalogo, TextosCitados) {
    for (const auto& citado : Citados)
        EXPECT_EQ(textos().Texto(citado.id), citado.texto) << citado.id;
}

TEST(Catalogo, TextosRepetidosAProposito) {
    const std::pair<int, const char16_t*> repetidos[] = {
        {10, u"   &Anterior"},     {95, u"   &Anterior"},   {12, u"     &Siguiente"},
        {94, u"     &Siguiente"},  {18, u"RENUNCIA"},       {7, u"RENUNCIA"},
        {389, u"Fallo en el NIF"}, {68, u"Fallo en el NIF"}};
    for (const auto& [id, texto] : repetidos)
        EXPECT_EQ(textos().Texto(id), QString::fromUtf16(texto)) << id;
    EXPECT_EQ(textos().Texto(15), textos().Texto(96));
}

TEST(Catalogo, NingunTextoTieneTabuladoresNiEstaVacioSinQuerer) {
    for (int id = 1; id <= 10881; ++id)
        if (textos().Existe(id) && id % 10000 != 649) {
            EXPECT_FALSE(textos().Texto(id).isEmpty()) << id;
        }
}

/// Pieces of a message keep the blanks that part them from what they are joined with.
TEST(Catalogo, LaTablaNoRecortaNada) {
    const CatalogoTextos tabla(QByteArray("id\tes\teu\n1\t a \t b \n3\t\t\\N\n4\t\\N\tx\n"));
    EXPECT_EQ(tabla.Texto(1), QStringLiteral(" a "));
    EXPECT_EQ(tabla.Texto(10001), QStringLiteral(" b "));
    EXPECT_FALSE(tabla.Existe(2));
    EXPECT_EQ(tabla.Texto(3), QString());
    EXPECT_THROW(tabla.Texto(10003), TextoAusente);
    EXPECT_THROW(tabla.Texto(4), TextoAusente);
    EXPECT_EQ(tabla.Texto(10004), QStringLiteral("x"));
    EXPECT_EQ(tabla.CuentaCastellano(), 2);
    EXPECT_EQ(tabla.CuentaEuskera(), 2);
}

std::string rechazo(const char* tabla) {
    try {
        const CatalogoTextos leida{QByteArray(tabla)};
        return {};
    } catch (const std::runtime_error& error) {
        return error.what();
    }
}

TEST(Catalogo, UnaLineaMalFormadaSeRechazaConSuNumero) {
    for (const char* linea : {"1\ta", "x\ta\tb", "0\ta\tb", "1\ta\tb\tc", "+1\ta\tb", " 1\ta\tb",
                              "-1\ta\tb", "\ta\tb", "10000\ta\tb", "4294967297\ta\tb"})
        EXPECT_EQ(rechazo((std::string("id\tes\teu\n7\ta\tb\n") + linea + "\n").c_str()),
                  "text catalogue: bad line 3")
            << linea;
    EXPECT_EQ(rechazo("id\tes\teu\n9999\ta\tb\n"), "");
}

TEST(Catalogo, UnNumeroRepetidoSeRechazaConSuLinea) {
    for (const char* tabla :
         {"id\tes\teu\n1\ta\tb\n2\tc\td\n1\ta\tb\n", "id\tes\teu\n1\t\\N\t\\N\n\n01\ta\tb\n",
          "id\tes\teu\n1\ta\t\\N\n2\tc\td\n1\t\\N\tb\n"})
        EXPECT_EQ(rechazo(tabla), "text catalogue: text 1 again in line 4") << tabla;
}

TEST(Catalogo, LosFinesDeLineaDeOtrosSistemasNoSonTexto) {
    const CatalogoTextos tabla(QByteArray("id\tes\teu\r\n1\ta\tb\r\n\r\n2\tc\t\\N\r\n3\td\t \r\n"));
    EXPECT_EQ(tabla.Texto(10001), QStringLiteral("b"));
    EXPECT_FALSE(tabla.Existe(10002));
    EXPECT_EQ(tabla.Texto(10003), QStringLiteral(" "));
    EXPECT_EQ(tabla.CuentaEuskera(), 2);
}

}  // namespace
}  // namespace padral
