// The words of the declarations list: cells and the line of the result.

#include "dec_lista_fixture.h"

namespace padral::pruebas {
namespace {

struct CasoTipo {
    const char16_t *causa1, *causa2;
    int texto;  ///< 0: blank
};
class TipoDeclaracion : public DecLista, public ::testing::WithParamInterface<CasoTipo> {};

TEST_P(TipoDeclaracion, DaElNombreDelTipoODeLaSolicitud) {
    const auto& [causa1, causa2, id] = GetParam();
    const QString c1 = QString::fromUtf16(causa1), c2 = QString::fromUtf16(causa2);
    EXPECT_EQ(lista.TextoTipo(c1, c2), id == 0 ? QString() : estado.textos.Texto(id));
    enEuskera();
    EXPECT_EQ(lista.TextoTipo(c1, c2), id == 0 ? QString() : estado.textos.Texto(id + 10000));
}

INSTANTIATE_TEST_SUITE_P(
    Letras, TipoDeclaracion,
    ::testing::Values(CasoTipo{u"P", u"", 582}, CasoTipo{u"M", u"", 583}, CasoTipo{u"C", u"", 584},
                      CasoTipo{u"I", u"", 585}, CasoTipo{u"I", u"A", 585}, CasoTipo{u"", u"A", 586},
                      CasoTipo{u"", u"B", 587}, CasoTipo{u"", u"C", 402}, CasoTipo{u" ", u"D", 588},
                      CasoTipo{u"", u"E", 589}, CasoTipo{u"", u"F", 590}, CasoTipo{u"", u"", 0},
                      CasoTipo{u"", u"G", 0}, CasoTipo{u" ", u" ", 0}, CasoTipo{u"X", u"B", 587}));

TEST_F(DecLista, LosTiposTienenLasPalabrasDelCatalogo) {
    const auto tipo = [this](const char16_t* letra) {
        return lista.TextoTipo(QString::fromUtf16(letra), QString());
    };
    EXPECT_EQ(tipo(u"P"), QStringLiteral("PREVIA"));
    EXPECT_EQ(tipo(u"M"), QStringLiteral("MODIFICACIÓN"));
    EXPECT_EQ(tipo(u"C"), QStringLiteral("CESE"));
    EXPECT_EQ(tipo(u"I"), QStringLiteral("INICIO"));
}

TEST(TextoApartados, DeLasOchoMarcas) {
    const std::pair<const char16_t*, const char16_t*> casos[] = {
        {u"X       ", u"2"},
        {u" X      ", u"3"},
        {u"  X     ", u"4"},
        {u"   X    ", u"5"},
        {u"    X   ", u"6"},
        {u"     X  ", u"7"},
        {u"      X ", u"AI"},
        {u"       X", u"AII"},
        {u"XX    X ", u"2,3,AI"},
        {u"XXXXXXXX", u"2,3,4,5,6,7,AI,AII"},
        {u"        ", u""},
        {u"", u""},
        {u"X", u"2"},
        {u"xxxxxxxx", u""},
        {u"XXXXXXXXX", u"2,3,4,5,6,7,AI,AII"},
    };
    for (const auto& [marcas, texto] : casos)
        EXPECT_EQ(cDecLista::TextoApartados(QString::fromUtf16(marcas)), QString::fromUtf16(texto))
            << QString::fromUtf16(marcas).toStdString();
}

TEST_F(DecLista, CeldasDeUnaFila) {
    const auto filas =
        filaUnica(7, 20021231, {"12345678z", "núñez ana", "ref1", "M", "XX    X ", "A"});
    const char16_t* esperadas[] = {u"7",          u"12345678Z",    u"NÚÑEZ ANA", u"REF1",
                                   u"31/12/2002", u"MODIFICACIÓN", u"2,3,AI"};
    for (int columna = 0; columna < 7; ++columna)
        EXPECT_EQ(lista.TextoCelda(filas, columna, 0), QString::fromUtf16(esperadas[columna]));
    enEuskera();
    EXPECT_EQ(lista.TextoCelda(filas, 4, 0), QStringLiteral("2002/12/31"));
    EXPECT_EQ(lista.TextoCelda(filas, 5, 0), estado.textos.Texto(10583));
}

TEST_F(DecLista, SinFechaLaCeldaEsLaMascaraVacia) {
    const auto filas = filaUnica(7, 0, {"", "", "", "", "", ""});
    EXPECT_EQ(lista.TextoCelda(filas, 4, 0), QStringLiteral("__/__/____"));
}

TEST_F(DecLista, SeleccionarTomaLaFila) {
    const auto filas = filaUnica(7, 20021231, {"12345678Z", "ANA", "R1", "C", "XXXXXXXX", ""});
    lista.Seleccionar(filas, 0);
    EXPECT_EQ(lista.csde, 7);
    EXPECT_EQ(lista.DNI.texto(), QStringLiteral("12345678Z"));
    EXPECT_EQ(lista.NOMBRE.recortado(), QStringLiteral("ANA"));
    EXPECT_EQ(lista.NUMARCHIVO.recortado(), QStringLiteral("R1"));
    EXPECT_EQ(lista.FECHADECLARACION, QStringLiteral("20021231"));
    EXPECT_EQ(lista.TIPODECLARACION.recortado(), QStringLiteral("CESE"));
    EXPECT_EQ(lista.APARTADOS.texto(), QStringLiteral("2,3,4,5"));
    lista.LimpiarSeleccion();
    EXPECT_EQ(lista.csde, 0);
    EXPECT_TRUE(lista.DNI.vacio() && lista.NOMBRE.vacio() && lista.NUMARCHIVO.vacio());
    EXPECT_TRUE(lista.TIPODECLARACION.vacio() && lista.APARTADOS.vacio());
    EXPECT_TRUE(lista.FECHADECLARACION.isEmpty());
}

struct CasoFrase {
    qint16 columna;
    const char16_t *valor, *castellano, *euskera;
};

TEST_F(DecLista, LineaDeCadaCriterio) {
    const CasoFrase casos[] = {
        {1, u"5", u"DNI >= 5 ", u". NA >= 5 "},
        {2, u"GA", u"Nombre empieza por 'GA' ", u". Izena 'GA'-kin hasten da "},
        {3, u"R1", u"Referencia empieza por 'R1' ", u". Erreferentzia 'R1'-kin hasten da "},
        {4, u"01/02/2003", u"Fecha >= '01/02/2003' ", u"Data >= '01/02/2003' "},
        {5, u"Z", u"Selección desconocida: 'Z' ", u"Hautapen ezezaguna: 'Z' "},
    };
    lista.NUMDECLASEL = QStringLiteral("3");
    for (const auto& caso : casos) {
        lista.TS_CLEAR();
        lista.TS_AÑADIR(caso.columna, QString::fromUtf16(caso.valor));
        estado.DesplazamientoIdioma = 0;
        EXPECT_EQ(lista.LineaResultado(),
                  QString::fromUtf16(caso.castellano) + u'3' + estado.textos.Texto(575));
        enEuskera();
        EXPECT_EQ(lista.LineaResultado(),
                  QString::fromUtf16(caso.euskera) + u'3' + estado.textos.Texto(10575));
    }
}

TEST_F(DecLista, LineaSinCriteriosYConVarios) {
    lista.NUMDECLASEL = QStringLiteral("12");
    EXPECT_EQ(lista.LineaResultado(), QStringLiteral("12 declaración(es) en la lista. "));
    lista.TS_AÑADIR(2, QStringLiteral("A"));
    lista.TS_AÑADIR(1, QStringLiteral("1"));
    EXPECT_EQ(lista.LineaResultado(),
              QStringLiteral("Nombre empieza por 'A' DNI >= 1 12 declaración(es) en la lista. "));
    lista.NUMDECLASEL = QStringLiteral("0");
    EXPECT_EQ(lista.LineaResultado(),
              QStringLiteral("Nombre empieza por 'A' DNI >= 1 "
                             "No existen datos que cumplan la condición. "));
}

}  // namespace
}  // namespace padral::pruebas
