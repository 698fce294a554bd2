// Entering the participants list: rows, counts, the current row, words.

#include <SQLiteCpp/SQLiteCpp.h>

#include "participants/participants_list_fixture.h"

namespace padral::pruebas {
namespace {

using CargaLista = ListaParticipes;

TEST_F(CargaLista, ColumnasYCeldas) {
    tres();
    abrir();
    EXPECT_EQ(pantalla->objectName(), q(u"frmListaParticipes"));
    ASSERT_EQ(rejilla()->model()->columnCount(), 6);
    EXPECT_TRUE(rejilla()->isColumnHidden(0));
    const char16_t* esperadas[3][6] = {
        {u"7", u"X1234567L", u"EVA LASA", u"GRANDE", u"ORETA", u"33,33"},
        {u"5", u"12345678Z", u"LUIS ABAD", u"NUEVA", u"AZPIL", u"50,00"},
        {u"0", u"A12345674", u"ANA ZUBI", u"ÑANDU", u"ORETA", u"16,67"}};
    for (int fila = 1; fila <= 3; ++fila)
        for (int c = 0; c < 6; ++c)
            EXPECT_EQ(celda(fila, c), q(esperadas[fila - 1][c])) << fila << ' ' << c;
    for (int fila = 4; fila <= 15; ++fila)
        for (int c = 0; c < 6; ++c) EXPECT_EQ(celda(fila, c), QString()) << fila;
}

TEST_F(CargaLista, CabecerasYTituloEnLosDosIdiomas) {
    const char16_t* castellano[] = {u"NIF", u"Apellidos y Nombre", u"Domicilio", u"Municipio",
                                    u"Porcentaje"};
    const char16_t* euskera[] = {u"IFZ", u"Deiturak eta Izena", u"Helbidea", u"Udalerria",
                                 u"Ehunekoa"};
    tres();
    for (const bool vasco : {false, true}) {
        if (vasco) enEuskera();
        abrir();
        EXPECT_EQ(pantalla->windowTitle(),
                  vasco ? q(u" PARTAIDEEN ZERRENDA") : q(u" LISTA PARTÍCIPES"));
        EXPECT_EQ(rotulo(u"lblTituloPantalla"), pantalla->windowTitle().trimmed());
        for (int c = 1; c <= 5; ++c)
            EXPECT_EQ(cabecera(c), q((vasco ? euskera : castellano)[c - 1]));
        EXPECT_EQ(rotulo(u"lblayuda"), estado.Texto(617));
        EXPECT_EQ(rotulo(u"lblResultado"),
                  vasco ? q(u"3 partaide zerrendan. ") : q(u"3 partícipe(s) en la lista. "));
    }
}

struct CasoPorcentaje {
    float valor;
    const char16_t* texto;
};

TEST_F(CargaLista, ElPorcentajeLlevaComaEnCualquierSistema) {
    const QLocale antes;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const CasoPorcentaje casos[] = {
        {100, u"100,00"}, {0.01F, u"0,01"}, {33.3F, u"33,30"}, {0, u"0,00"}, {99.99F, u"99,99"}};
    for (const auto& caso : casos) poner({u"12345678Z", u"N", caso.valor});
    abrir();
    for (int i = 0; i < 5; ++i) EXPECT_EQ(celda(i + 1, 5), q(casos[i].texto));
    QLocale::setDefault(antes);
}

struct CasoFilas {
    int participes, filas;
};

TEST_F(CargaLista, LaRejillaTienePaginasEnterasDeQuince) {
    const CasoFilas casos[] = {{0, 15},  {1, 15},  {15, 15},  {16, 30},
                               {30, 30}, {31, 45}, {100, 105}};
    for (const auto& caso : casos) {
        d.InicializarDeclaracion();
        poner(caso.participes);
        abrir();
        EXPECT_EQ(rejilla()->model()->rowCount(), caso.filas) << caso.participes;
        EXPECT_EQ(l.NUMPARTLIST, caso.participes);
        EXPECT_EQ(columna(1).size(), caso.participes);
        EXPECT_EQ(filaMarcada(), caso.participes ? 1 : 0);
    }
}

TEST_F(CargaLista, SinParticipesLoDiceYNoHayFila) {
    abrir();
    EXPECT_EQ(rotulo(u"lblResultado"), q(u"No existen datos que cumplan la condición. "));
    EXPECT_EQ(filaMarcada(), 0);
    dobleClic(1, 1);
    tecla(Qt::Key_Return);
    EXPECT_TRUE(pantallas.Tomar().isEmpty());
}

TEST_F(CargaLista, LosEliminadosNoSalenNiCuentan) {
    tres();
    d.participantes.colParticipes.push_back(nuevoParticipe(u"00000000T", u"E", 9));
    g.NumParti = 4;
    abrir();
    EXPECT_EQ(columna(1), (QStringList{q(u"X1234567L"), q(u"12345678Z"), q(u"A12345674")}));
    EXPECT_EQ(l.NUMPARTLIST, 3);
    EXPECT_EQ(g.NumParti, 3);
}

// The store has it under its code alone; the list says its name.
TEST_F(CargaLista, ElMunicipioDelTerritorioTambienSale) {
    poner({u"12345678Z", u"LUIS", 10, u"NUEVA", u"Aldabarri"})->CodPostal = 20001;
    abrir();
    EXPECT_EQ(celda(1, 4), q(u"ALDABARRI"));
}

TEST_F(CargaLista, LaCopiaAuxiliarVaConLaDeclaracion) {
    SvrVuelco::cDeclaSvr servidor;
    servidor.mdbname = estado.RutaBDModificacion;
    const auto guardados = [&](qint32 csde) {
        Tabla filas;
        return servidor.DameParticipesAux(csde, {}, filas, q(u"0"), q(u"ASC"));
    };
    tres();
    abrir();
    EXPECT_EQ(guardados(0), q(u"3")) << "a new declaration has key 0";
    cerrar();
    EXPECT_EQ(guardados(0), q(u"0")) << "what is not saved stays nowhere";
    d.csde = 12;
    d.participantes.colParticipes.pop_back();
    abrir();
    EXPECT_EQ(guardados(12), q(u"2"));
    EXPECT_EQ(guardados(0), q(u"0"));
    cerrar();
    EXPECT_EQ(guardados(12), q(u"0"));
}

// Another program holds the file while the screen goes: nothing is told and nothing is waited for.
TEST_F(CargaLista, LaCopiaAuxiliarQueNoSePuedeQuitarSeQueda) {
    tres();
    abrir();
    {
        SQLite::Database otro(estado.RutaBDModificacion.toStdString(), SQLite::OPEN_READWRITE);
        const SQLite::Transaction ocupado(otro, SQLite::TransactionBehavior::EXCLUSIVE);
        EXPECT_NO_THROW(cerrar());
    }
    avisos.Verificar();
    tres();
    abrir();
    EXPECT_EQ(l.NUMPARTLIST, 6);
}

TEST_F(CargaLista, LaFilaTomadaEntraEnElRegistro) {
    tres();
    abrir();
    pulsarCelda(2, 4);
    EXPECT_EQ(l.cspa, 5);
    EXPECT_EQ(l.DNI.texto(), q(u"12345678Z"));
    EXPECT_EQ(l.NOMBRE.recortado(), q(u"LUIS ABAD"));
    EXPECT_EQ(l.DOMICILIO.recortado(), q(u"NUEVA"));
    EXPECT_EQ(l.MUNICIPIO.recortado(), q(u"AZPIL"));
    EXPECT_EQ(l.PORCENTAJE, 50);
    EXPECT_EQ(l.MODOPART.texto(), q(u"C"));
    EXPECT_EQ(filaMarcada(), 2);
    pulsarCelda(3, 1);
    EXPECT_EQ(l.PORCENTAJE, 17);
}

struct CasoFila {
    const char16_t* dni;
    qint32 cspa;
    int fila;
};

TEST_F(CargaLista, LaFilaPropiaEsLaDelNif) {
    const CasoFila casos[] = {{u"", 0, 1},           {u"A12345674", 0, 3}, {u"12345678Z", 5, 2},
                              {u"", 5, 2},           {u"00000000T", 5, 2}, {u"00000000T", 0, 1},
                              {u"00000000T", 99, 1}, {u"A12345674", 5, 3}};
    tres();
    for (const auto& caso : casos) {
        l.Inicializado = true;
        l.DNI = q(caso.dni);
        l.cspa = caso.cspa;
        abrir();
        EXPECT_EQ(filaMarcada(), caso.fila) << s(caso.dni) << ' ' << caso.cspa;
        EXPECT_EQ(l.DNI.texto(), celda(caso.fila, 1));
        EXPECT_EQ(l.cspa, celda(caso.fila, 0).toInt());
    }
}

TEST_F(CargaLista, LaFilaPropiaQuedaALaVista) {
    poner(100);
    l.Inicializado = true;
    l.DNI = q(u"00000099T");
    abrir();
    EXPECT_EQ(filaMarcada(), 100);
    EXPECT_TRUE(rejilla()->viewport()->rect().contains(centroDe(100, 1)));
}

TEST_F(CargaLista, SoloLaPrimeraVezSeInicializa) {
    tres();
    l.ORDEN = 2;
    abrir();
    EXPECT_TRUE(l.Inicializado);
    EXPECT_EQ(l.ORDEN, 0);
    l.ORDEN = 2;
    l.TIPOORDEN = q(u"DESC");
    l.TS_AÑADIR(2, q(u"E"));
    abrir();
    EXPECT_EQ(columna(2), QStringList{q(u"EVA LASA")});
    EXPECT_TRUE(visible(u"picdesc"));
    EXPECT_EQ(g.NumParti, 3) << "what is found does not count";
}

TEST_F(CargaLista, LosRotulosDelDiseno) {
    tres();
    abrir();
    pantalla->Anadir_captions();
    EXPECT_EQ(boton(u"cmdBuscar"), q(u"&Búsqueda"));
    EXPECT_EQ(rotulo(u"lblResultado"), q(u"No existen datos que cumplan la condición"));
}

TEST_F(CargaLista, LaSeleccionSigueAlRatonYAlTeclado) {
    tres();
    abrir();
    EXPECT_EQ(foco(), q(u"flxParticipes"));
    pulsarCelda(3, 5);
    EXPECT_EQ(l.DNI.texto(), q(u"A12345674"));
    const std::pair<Qt::Key, int> teclas[] = {
        {Qt::Key_Up, 2},     {Qt::Key_Home, 1},     {Qt::Key_End, 3}, {Qt::Key_Down, 3},
        {Qt::Key_PageUp, 1}, {Qt::Key_PageDown, 3}, {Qt::Key_Up, 2}};
    for (const auto& [codigo, fila] : teclas) {
        tecla(codigo);
        EXPECT_EQ(filaMarcada(), fila) << codigo;
        EXPECT_EQ(l.DNI.texto(), celda(fila, 1));
    }
    teclear(u"x");
    EXPECT_EQ(filaMarcada(), 2) << "letters search nothing";
}

TEST_F(CargaLista, LasFilasEnBlancoNoSeEligen) {
    tres();
    abrir();
    pulsarCelda(2, 1);
    for (const int fila : {4, 15}) {
        pulsarCelda(fila, 1);
        EXPECT_EQ(filaMarcada(), 2);
        EXPECT_EQ(l.DNI.texto(), q(u"12345678Z"));
        QTest::mouseDClick(rejilla()->viewport(), Qt::LeftButton, {}, centroDe(fila, 1));
        EXPECT_TRUE(pantallas.Tomar().isEmpty());
    }
}

}  // namespace
}  // namespace padral::pruebas
