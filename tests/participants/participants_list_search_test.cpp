// Searching the participants.

#include "participants/participants_list_fixture.h"

namespace padral::pruebas {
namespace {

class BusquedaParticipes : public ListaParticipes {
protected:
    QStringList nombres() { return columna(2); }
    bool cajaSobre(int columna) {
        const auto* titulos = rejilla()->horizontalHeader();
        return caja()->isVisible() &&
               caja()->mapToGlobal(QPoint()) ==
                   titulos->viewport()->mapToGlobal(
                       QPoint(titulos->sectionViewportPosition(columna), 0)) &&
               caja()->size() == QSize(titulos->sectionSize(columna), titulos->height());
    }
    const QString e = q(u"EVA LASA"), lu = q(u"LUIS ABAD"), a = q(u"ANA ZUBI");
};

TEST_F(BusquedaParticipes, EmpiezaVaciaYSobreElNif) {
    tres();
    abrir();
    l.TS_AÑADIR(2, q(u"E"));
    pulsarCabecera(2);
    pulsar(u"cmdBuscar");
    EXPECT_EQ(l.BUSQUEDA.texto(), q(u"B"));
    EXPECT_EQ(l.cspa, 0);
    EXPECT_EQ(l.SELECCIONACTUAL, 1);
    EXPECT_EQ(l.TS_COUNT(), 0);
    EXPECT_EQ(l.NUMPARTLIST, 0);
    EXPECT_EQ(g.NumParti, 3);
    EXPECT_TRUE(columna(1).isEmpty());
    EXPECT_EQ(rotulo(u"lblayuda"), estado.Texto(619));
    EXPECT_EQ(rotulo(u"lblResultado"), QString());
    EXPECT_FALSE(visible(u"picasc") || visible(u"picdesc"));
    EXPECT_TRUE(cajaSobre(1));
    EXPECT_EQ(caja()->text(), QString());
    EXPECT_EQ(caja()->placeholderText(), q(u"NIF"));
    EXPECT_EQ(caja()->accessibleName(), q(u"NIF"));
    EXPECT_EQ(foco(), q(u"txtBusqueda"));
}

TEST_F(BusquedaParticipes, SeEligeElNifOElNombre) {
    tres();
    abrir();
    pulsar(u"cmdBuscar");
    const std::function<void(int)> formas[] = {[this](int c) { pulsarCabecera(c); },
                                               [this](int c) { pulsarCelda(1, c); },
                                               [this](int c) { pulsarCelda(9, c); }};
    for (const auto& elegir : formas) {
        for (const int c : {2, 1}) {
            elegir(c);
            EXPECT_TRUE(cajaSobre(c)) << c;
            EXPECT_EQ(l.SELECCIONACTUAL, c);
            EXPECT_EQ(foco(), q(u"txtBusqueda"));
        }
        for (const int c : {3, 4, 5}) {
            elegir(c);
            EXPECT_EQ(l.SELECCIONACTUAL, 1) << c;
            EXPECT_TRUE(cajaSobre(1));
        }
    }
}

TEST_F(BusquedaParticipes, ConElTecladoSePasaDeUnaAOtra) {
    tres();
    abrir();
    pulsar(u"cmdBuscar");
    tecla(Qt::Key_Tab);
    EXPECT_TRUE(cajaSobre(2));
    tecla(Qt::Key_Backtab);
    EXPECT_TRUE(cajaSobre(1));
    tecla(Qt::Key_Right);
    EXPECT_TRUE(cajaSobre(2));
    tecla(Qt::Key_Left);
    EXPECT_TRUE(cajaSobre(1));
    teclear(u"12");
    tecla(Qt::Key_Left);
    EXPECT_TRUE(cajaSobre(1)) << "inside the text";
    tecla(Qt::Key_Tab);
    tecla(Qt::Key_Tab);
    EXPECT_NE(foco(), q(u"txtBusqueda"));
    EXPECT_EQ(l.SELECCIONACTUAL, 2);
}

TEST_F(BusquedaParticipes, LosCriteriosEstanEnLaCabeceraHastaElFinal) {
    tres();
    abrir();
    pulsar(u"cmdBuscar");
    teclear(u"a");
    pulsarCabecera(2);
    EXPECT_EQ(cabecera(1), q(u"NIF: A"));
    EXPECT_EQ(cabecera(2), q(u"Apellidos y Nombre"));
    EXPECT_EQ(rejilla()->model()->index(3, 1).data(Qt::AccessibleTextRole).toString(),
              q(u"NIF: A"));
    EXPECT_EQ(caja()->accessibleName(), q(u"Apellidos y Nombre"));
    teclear(u"lu");
    pulsarCelda(1, 1);
    EXPECT_EQ(cabecera(2), q(u"Apellidos y Nombre: LU"));
    EXPECT_EQ(caja()->text(), q(u"A"));
    pulsar(u"cmdBuscar");
    EXPECT_EQ(cabecera(1), q(u"NIF"));
    EXPECT_EQ(cabecera(2), q(u"Apellidos y Nombre"));
    EXPECT_FALSE(caja()->isVisible());
}

TEST_F(BusquedaParticipes, FiltroYAnchoDeCadaColumna) {
    tres();
    abrir();
    pulsar(u"cmdBuscar");
    teclear(u"x1234567l99#");
    EXPECT_EQ(caja()->text(), q(u"X1234567L"));
    pulsarCabecera(2);
    teclear(u"ñu'ñez\"#á");
    EXPECT_EQ(caja()->text(), q(u"ÑUÑEZ"));
    caja()->selectAll();
    teclear(u"abcdefghijabcdefghijabcdefghijabcdefghijabc");
    EXPECT_EQ(caja()->text().size(), 40);
}

TEST_F(BusquedaParticipes, UnTextoAnadeCambiaOQuitaSuCriterio) {
    tres();
    abrir();
    pulsar(u"cmdBuscar");
    teclear(u"b");
    pulsarCabecera(2);
    EXPECT_EQ(l.TS_COUNT(), 1);
    teclear(u"e");
    pulsarCabecera(1);
    EXPECT_EQ(l.TS_PERTENECE(2), 2);
    EXPECT_EQ(caja()->selectedText(), q(u"B"));
    teclear(u"c");
    tecla(Qt::Key_Tab);
    EXPECT_EQ(l.TS_PERTENECE(1), 1) << "the first is still the first";
    QString valor;
    qint16 clave = 0;
    l.TS_ELEMENTO(1, clave, valor);
    EXPECT_EQ(valor, q(u"C"));
    tecla(Qt::Key_Delete);
    enfocar(u"cmdTodos");
    EXPECT_EQ(l.TS_COUNT(), 1);
    EXPECT_EQ(l.TS_PERTENECE(2), 0);
    EXPECT_TRUE(caja()->isVisible()) << "leaving the box only stores it";
}

struct CasoBusqueda {
    int columna;
    const char16_t* escrito;
    QStringList nombres;
    const char16_t *castellano, *euskera;
};

TEST_F(BusquedaParticipes, CadaCriterioConSuDescripcion) {
    const CasoBusqueda casos[] = {
        {1, u"a", {a, e}, u"DNI >= A 2 partícipe(s) en la lista. ", u". NA >= A 2 partaide"},
        {1, u"x1234567l", {e}, u"DNI >= X1234567L 1 ", u". NA >= X1234567L 1 "},
        {1,
         u"y",
         {},
         u"DNI >= Y No existen datos que cumplan la condición. ",
         u". NA >= Y Ez dago"},
        {2, u"e", {e}, u"Nombre empieza por 'E' 1 ", u". Izena 'E'-kin hasten da 1 "},
        {2, u"luis a", {lu}, u"Nombre empieza por 'LUIS A' 1 ", u". Izena 'LUIS A'-kin"},
        {2, u"abad", {}, u"Nombre empieza por 'ABAD' No existen", u". Izena 'ABAD'-kin"},
        {2, u"", {a, e, lu}, u"3 partícipe(s)", u"3 partaide"},
        {1, u"  ", {lu, a, e}, u"3 partícipe(s)", u"3 partaide"}};
    tres();
    for (const bool vasco : {false, true}) {
        if (vasco) enEuskera();
        for (const auto& caso : casos) {
            SCOPED_TRACE(s(caso.escrito));
            abrir();
            buscar(caso.columna, caso.escrito);
            EXPECT_EQ(nombres(), caso.nombres);
            EXPECT_EQ(l.ORDEN, caso.columna);
            EXPECT_EQ(l.TIPOORDEN, q(u"ASC"));
            EXPECT_EQ(l.BUSQUEDA.texto(), q(u"N"));
            EXPECT_EQ(l.SELECCIONACTUAL, caso.columna);
            EXPECT_EQ(l.NUMPARTLIST, caso.nombres.size());
            EXPECT_EQ(g.NumParti, 3);
            EXPECT_EQ(d.NumParti, 3);
            const QString linea = q(vasco ? caso.euskera : caso.castellano);
            EXPECT_EQ(rotulo(u"lblResultado").left(linea.size()), linea);
        }
    }
}

TEST_F(BusquedaParticipes, LosCriteriosSeJuntan) {
    tres();
    poner({u"B20000002", u"LUISA NUÑEZ"});
    abrir();
    pulsar(u"cmdBuscar");
    teclear(u"b");
    tecla(Qt::Key_Tab);
    teclear(u"lu");
    tecla(Qt::Key_Return);
    EXPECT_EQ(nombres(), QStringList{q(u"LUISA NUÑEZ")});
    EXPECT_EQ(rotulo(u"lblResultado"),
              q(u"DNI >= B Nombre empieza por 'LU' 1 partícipe(s) en la lista. "));
    EXPECT_EQ(foco(), q(u"flxParticipes"));
    EXPECT_TRUE(visible(u"picasc"));
}

struct CasoLetras {
    const char16_t* escrito;
    QStringList nombres;
};

TEST_F(BusquedaParticipes, MayusculasMinusculasYLaEne) {
    for (const auto* nombre : {u"nuñez", u"NUNEZ", u"ÑU", u"Álvarez", u"alvar"})
        poner({u"12345678Z", nombre});
    const CasoLetras casos[] = {{u"NU", {q(u"NUNEZ"), q(u"NUÑEZ")}},
                                {u"nuñ", {q(u"NUÑEZ")}},
                                {u"ñ", {q(u"ÑU")}},
                                {u"al", {q(u"ALVAR")}}};
    for (const auto& caso : casos) {
        abrir();
        buscar(2, caso.escrito);
        EXPECT_EQ(nombres(), caso.nombres) << s(caso.escrito);
    }
}

TEST_F(BusquedaParticipes, OtrosCriteriosDeLaTabla) {
    tres();
    abrir();
    l.TS_AÑADIR(3, q(u"GRAN"));
    pulsarCabecera(2);
    EXPECT_EQ(nombres(), QStringList{e}) << "each text goes to the place of its key";
    EXPECT_EQ(rotulo(u"lblResultado"),
              q(u"Selección desconocida: 'GRAN' 1 partícipe(s) en la lista. "));
    enEuskera();
    pulsarCabecera(1);
    EXPECT_TRUE(rotulo(u"lblResultado").startsWith(q(u"Hautapen ezezaguna: 'GRAN' ")));
    estado.DesplazamientoIdioma = 0;
    l.TS_CLEAR();
    l.TS_AÑADIR(0, q(u"Z"));
    pulsarCabecera(1);
    EXPECT_EQ(rotulo(u"lblResultado"), q(u"3 partícipe(s) en la lista. "));
}

TEST_F(BusquedaParticipes, TodosVuelveALaListaEntera) {
    for (const bool aMedias : {false, true}) {
        d.InicializarDeclaracion();
        tres();
        abrir();
        buscar(2, u"e");
        if (aMedias) {
            pulsar(u"cmdBuscar");
            teclear(u"1");
        }
        pulsar(u"cmdTodos");
        EXPECT_EQ(nombres(), (QStringList{e, lu, a})) << "as they were entered";
        EXPECT_EQ(l.BUSQUEDA.texto(), q(u"N"));
        EXPECT_EQ(l.ORDEN, 0);
        EXPECT_EQ(l.TIPOORDEN, q(u"DESC"));
        EXPECT_EQ(l.SELECCIONACTUAL, 0);
        EXPECT_EQ(l.TS_COUNT(), 0);
        EXPECT_EQ(l.NUMPARTLIST, 3);
        EXPECT_EQ(l.DNI.texto(), q(u"X1234567L")) << "its row stays current";
        EXPECT_EQ(filaMarcada(), 1);
        EXPECT_FALSE(caja()->isVisible());
        EXPECT_FALSE(visible(u"picasc") || visible(u"picdesc"));
        EXPECT_EQ(foco(), q(u"flxParticipes"));
    }
}

TEST_F(BusquedaParticipes, MientrasSeBuscaNadaSeAbreNiSeOrdena) {
    tres();
    abrir();
    pulsar(u"cmdBuscar");
    rejilla()->setFocus();
    tecla(Qt::Key_2, Qt::ControlModifier);
    tecla(Qt::Key_Return);
    dobleClic(1, 4);
    EXPECT_EQ(l.BUSQUEDA.texto(), q(u"B"));
    EXPECT_EQ(l.ORDEN, 0);
    EXPECT_TRUE(pantallas.Tomar().isEmpty());
}

TEST_F(BusquedaParticipes, LaBusquedaAMediasEsperaLaVuelta) {
    tres();
    abrir();
    pulsar(u"cmdBuscar");
    tecla(Qt::Key_Tab);
    teclear(u"ev");
    pulsar(u"cmdAnterior");
    EXPECT_EQ(pantallas.Tomar().size(), 2);
    abrir();
    EXPECT_TRUE(cajaSobre(2));
    EXPECT_EQ(caja()->text(), q(u"EV"));
    EXPECT_EQ(foco(), q(u"txtBusqueda"));
    pantalla->resize(1000, 500);
    QCoreApplication::processEvents();
    EXPECT_TRUE(cajaSobre(2)) << "it goes with the grid";
    tecla(Qt::Key_Return);
    EXPECT_EQ(nombres(), QStringList{e});
}

}  // namespace
}  // namespace padral::pruebas
