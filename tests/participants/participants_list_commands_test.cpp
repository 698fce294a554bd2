// New, show, delete and leave from the participants list.

#include "participants/participants_list_fixture.h"

namespace padral::pruebas {
namespace {

class OrdenesParticipes : public ListaParticipes {
protected:
    std::shared_ptr<cParticipes>& actual() { return d.participantes.ParticipeActual; }
};

TEST_F(OrdenesParticipes, NuevoEmpiezaOtroObjeto) {
    for (const auto* control : {u"CmdNuevo", u"PicNuevo"}) {
        d.InicializarDeclaracion();
        tres();
        actual() = luis;
        abrir();
        estado.FormularioOrigen = q(u"FrmDatGen");
        QString origen;
        pantallas.alLlamar = [&](const QString& llamada) {
            if (!llamada.startsWith(q(u"Mostrar"))) return;
            origen = estado.FormularioOrigen;
            EXPECT_TRUE(pantallas.EnEspera());
        };
        pulsar(control);
        pantallas.alLlamar = {};
        EXPECT_EQ(pantallas.Tomar(), salida(u"frmDatosParticipe")) << s(control);
        EXPECT_EQ(origen, q(u"frmListaParticipes"));
        EXPECT_NE(actual(), luis);
        EXPECT_TRUE(actual()->DNI.vacio());
        EXPECT_EQ(actual()->Modo.texto(), q(u"A"));
        EXPECT_TRUE(actual()->MODIFPARTICIPES);
        EXPECT_EQ(luis->NOMBRE.recortado(), q(u"LUIS ABAD")) << "it is left as it was";
        EXPECT_EQ(luis->Modo.texto(), q(u"C"));
        EXPECT_EQ(coleccion().size(), 3);
    }
}

TEST_F(OrdenesParticipes, VerTomaElDeLaFila) {
    const std::function<void()> formas[] = {
        [this] { pulsarCelda(3, 2), pulsar(u"CmdVerParticipe"); },
        [this] { pulsarCelda(3, 2), pulsar(u"PicVer"); },
        [this] { dobleClic(3, 4); },
        [this] { pulsarCelda(3, 2), tecla(Qt::Key_Return); },
    };
    for (const auto& ver : formas) {
        d.InicializarDeclaracion();
        tres();
        abrir();
        estado.FormularioOrigen = q(u"FrmDatGen");
        ana->MODIFPARTICIPES = true;
        ver();
        EXPECT_EQ(pantallas.Tomar(), salida(u"frmDatosParticipe"));
        EXPECT_EQ(actual(), ana);
        EXPECT_EQ(ana->Modo.texto(), q(u"C"));
        EXPECT_FALSE(ana->MODIFPARTICIPES);
        EXPECT_EQ(estado.FormularioOrigen, q(u"FrmDatGen"));
        EXPECT_EQ(eva->Modo.texto(), q(u"C"));
    }
}

TEST_F(OrdenesParticipes, VerDejaAparteAlEliminadoDelMismoNif) {
    tres();
    auto viejo = nuevoParticipe(u"A12345674", u"E", 3);
    auto& todos = d.participantes.colParticipes;
    todos.insert(todos.begin(), viejo);
    abrir();
    dobleClic(3, 1);
    EXPECT_EQ(actual(), ana);
    EXPECT_EQ(viejo->Modo.texto(), q(u"E"));
}

TEST_F(OrdenesParticipes, LosNuevosSeDistinguenPorSuNif) {
    const char16_t* nifs[] = {u"12345678Z", u"X1234567L", u"A12345674"};
    std::vector<std::shared_ptr<cParticipes>> nuevos;
    for (const auto* nif : nifs) nuevos.push_back(poner({nif, u"NUEVO"}));
    for (std::size_t i = 0; i < nuevos.size(); ++i) {
        abrir();
        dobleClic(static_cast<int>(i) + 1, 1);
        EXPECT_EQ(actual(), nuevos[i]);
        abrir();
        EXPECT_EQ(filaMarcada(), static_cast<int>(i) + 1) << "back on the same row";
    }
}

TEST_F(OrdenesParticipes, EliminarConNoNoCambiaNada) {
    tres();
    abrir();
    esperaPreguntaDeEliminar(Respuesta::No);
    pulsar(u"CmdEliminar");
    EXPECT_EQ(coleccion(), (QStringList{q(u"X1234567L"), q(u"12345678Z"), q(u"A12345674")}));
    EXPECT_FALSE(l.MODIFLISTAPART);
    EXPECT_FALSE(eva->MODIFPARTICIPES);
    EXPECT_EQ(d.NumParti, 3);
    EXPECT_TRUE(pantallas.Tomar().isEmpty());
}

TEST_F(OrdenesParticipes, LaPreguntaEnEuskera) {
    enEuskera();
    tres();
    abrir();
    avisos.Espera({q(u"Benetan ezabatu nahi duzu hautatutako partaidea?"),
                   q(u"Baieztatu ezabatzea"), Icono::Exclamacion, Botones::SiNo},
                  Respuesta::No);
    pulsar(u"PicBorrar");
}

struct CasoEliminar {
    int fila;
    const char16_t* nif;
    QStringList coleccion, lista;
};

TEST_F(OrdenesParticipes, ElEliminadoVaAlFinal) {
    const QString e = q(u"X1234567L"), lu = q(u"12345678Z"), a = q(u"A12345674"), x = q(u" E");
    const CasoEliminar casos[] = {{1, u"X1234567L", {lu, a, e + x}, {lu, a}},
                                  {2, u"12345678Z", {e, a, lu + x}, {e, a}},
                                  {3, u"A12345674", {e, lu, a + x}, {e, lu}}};
    for (const auto& caso : casos) {
        d.InicializarDeclaracion();
        tres();
        estado.ModificacionesPendientes = false;
        abrir();
        eliminar(caso.fila);
        EXPECT_EQ(coleccion(), caso.coleccion);
        EXPECT_EQ(columna(1), caso.lista);
        EXPECT_TRUE(d.participantes.colParticipes.back()->MODIFPARTICIPES);
        EXPECT_TRUE(l.MODIFLISTAPART);
        EXPECT_EQ(d.NumParti, 2);
        EXPECT_EQ(g.NumParti, 2);
        EXPECT_EQ(l.NUMPARTLIST, 2);
        EXPECT_EQ(g.AnexoI, q(u"X"));
        EXPECT_EQ(rotulo(u"lblResultado"), q(u"2 partícipe(s) en la lista. "));
        EXPECT_EQ(filaMarcada(), 1);
        EXPECT_EQ(l.DNI.texto(), caso.lista.front());
        EXPECT_FALSE(estado.ModificacionesPendientes) << "only when the list is left";
        EXPECT_TRUE(pantallas.Tomar().isEmpty());
    }
}

TEST_F(OrdenesParticipes, LaListaSigueConSuOrdenTrasEliminar) {
    tres();
    abrir();
    pulsarCabecera(2);
    eliminar(2);
    EXPECT_EQ(columna(2), (QStringList{q(u"ANA ZUBI"), q(u"LUIS ABAD")}));
    pulsar(u"CmdNuevo");
    poner({u"X1234567L", u"EVA OTRA"});
    abrir();
    EXPECT_EQ(columna(2), (QStringList{q(u"ANA ZUBI"), q(u"EVA OTRA"), q(u"LUIS ABAD")}))
        << "an identifier that was deleted is new again";
    dobleClic(2, 1);
    EXPECT_EQ(actual()->NOMBRE.recortado(), q(u"EVA OTRA"));
    EXPECT_EQ(eva->Modo.texto(), q(u"E"));
}

TEST_F(OrdenesParticipes, EliminarElUnicoQueSeEncontroDejaLaListaVacia) {
    tres();
    abrir();
    buscar(2, u"eva");
    eliminar(1);
    EXPECT_EQ(rotulo(u"lblResultado"),
              q(u"Nombre empieza por 'EVA' No existen datos que cumplan la condición. "));
    EXPECT_EQ(d.NumParti, 2);
    EXPECT_EQ(g.NumParti, 2);
    EXPECT_EQ(l.NUMPARTLIST, 0);
    EXPECT_FALSE(habilitado(u"CmdVerParticipe"));
    EXPECT_FALSE(habilitado(u"CmdEliminar"));
    EXPECT_TRUE(habilitado(u"CmdNuevo"));
    EXPECT_TRUE(pantallas.Tomar().isEmpty());
}

TEST_F(OrdenesParticipes, EliminarElUltimoDejaLaLista) {
    g.AnexoI = q(u"X");
    g.Apartado7 = q(u"X");
    luis = poner(Luis);
    actual() = luis;
    abrir();
    eliminar(1);
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmApartado7"));
    EXPECT_EQ(estado.FormularioOrigen, q(u"frmListaParticipes"));
    EXPECT_TRUE(estado.ModificacionesPendientes);
    EXPECT_EQ(g.AnexoI, QString());
    EXPECT_EQ(d.NumParti, 0);
    EXPECT_EQ(g.NumParti, 0);
    EXPECT_EQ(coleccion(), QStringList{q(u"12345678Z E")}) << "the save still tells the store";
    EXPECT_EQ(luis->cspa, 5);
    EXPECT_NE(actual(), luis);
    EXPECT_TRUE(actual()->DNI.vacio());
    EXPECT_FALSE(actual()->MODIFPARTICIPES);
}

struct CasoSalida {
    const char16_t *control, *destino;
    bool dejaOrigen;
};

TEST_F(OrdenesParticipes, LasSalidas) {
    const CasoSalida casos[] = {
        {u"cmdSiguiente", u"frmAnexoII", false}, {u"PicSiguiente", u"frmAnexoII", false},
        {u"cmdAnterior", u"frmApartado6", true}, {u"PicAnterior", u"frmApartado6", true},
        {u"cmdInicio", u"FrmDatGen", true},      {u"PicInicio", u"FrmDatGen", true}};
    for (const auto& caso : casos)
        for (const bool cambiada : {false, true}) {
            d.InicializarDeclaracion();
            tres();
            g.Apartado6 = g.AnexoII = q(u"X");
            estado.ModificacionesPendientes = false;
            estado.FormularioOrigen = q(u"FrmDatGen");
            abrir();
            l.MODIFLISTAPART = cambiada;
            pulsar(caso.control);
            EXPECT_EQ(pantallas.Tomar(), salida(caso.destino)) << s(caso.control);
            EXPECT_EQ(estado.ModificacionesPendientes, cambiada) << s(caso.control);
            EXPECT_EQ(estado.FormularioOrigen,
                      caso.dejaOrigen ? q(u"frmListaParticipes") : q(u"FrmDatGen"));
        }
}

TEST_F(OrdenesParticipes, SinNadaDespuesSeQueda) {
    pantallas.ausentes = {q(u"frmAnexoII")};
    g.AnexoII = q(u"X");
    tres();
    abrir();
    pulsar(u"cmdSiguiente");
    EXPECT_TRUE(pantallas.Tomar().isEmpty());
}

TEST_F(OrdenesParticipes, LasTeclasDeAcceso) {
    const std::pair<Qt::Key, const char16_t*> casos[] = {{Qt::Key_A, u"FrmDatGen"},
                                                         {Qt::Key_I, u"FrmDatGen"},
                                                         {Qt::Key_S, u"frmAnexoII"},
                                                         {Qt::Key_C, u"frmDatosParticipe"},
                                                         {Qt::Key_V, u"frmDatosParticipe"}};
    g.AnexoII = q(u"X");
    tres();
    for (const auto& [codigo, destino] : casos) {
        abrir();
        tecla(codigo, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([this] { return pantallas.Llamadas.size() == 2; }));
        EXPECT_EQ(pantallas.Tomar(), salida(destino)) << codigo;
    }
}

}  // namespace
}  // namespace padral::pruebas
