// Opening, copying, new, deleting and leaving from the declarations list.

#include "screen_fixture.h"

namespace padral::pruebas {
namespace {

const QStringList AlDatosGenerales{QStringLiteral("Mostrar FrmDatGen"),
                                   QStringLiteral("Descargar FrmDecLista")};
const QStringList AlMenu{QStringLiteral("HabilitarMenus"), QStringLiteral("Descargar FrmDecLista")};

class OrdenesLista : public PantallaLista {
protected:
    Mensaje pregunta() const {
        return {QStringLiteral("¿Realmente quiere borrar la declaración seleccionada?"),
                QStringLiteral("Confirme eliminación"), Icono::Exclamacion, Botones::SiNo};
    }
};

struct CasoAbrir {
    const char16_t *boton, *modo;
    bool conClave, pendiente;
};

TEST_F(OrdenesLista, VerCopiarYNueva) {
    const CasoAbrir casos[] = {{u"cmdVerDeclaracion", u"C", true, false},
                               {u"CmdCopiarDeclaracion", u"A", true, true},
                               {u"CmdNuevo", u"A", false, true}};
    for (const auto& caso : casos) {
        abrir(QStringLiteral("A"));
        pulsarCelda(2, 1);
        declaracion.csde = 99;
        estado.FormularioOrigen = QStringLiteral("MDIPadral");
        QString origenAlMostrar;
        pantallas.alLlamar = [&](const QString& llamada) {
            if (llamada != AlDatosGenerales[0]) return;
            origenAlMostrar = estado.FormularioOrigen;
            EXPECT_TRUE(pantallas.EnEspera());
        };
        pulsar(caso.boton);
        pantallas.alLlamar = {};
        EXPECT_EQ(pantallas.Tomar(), AlDatosGenerales);
        EXPECT_EQ(origenAlMostrar, QStringLiteral("FrmDecLista"));
        EXPECT_EQ(declaracion.Modo, QString::fromUtf16(caso.modo));
        EXPECT_EQ(declaracion.csde, caso.conClave ? ana : 0);
        EXPECT_EQ(estado.ModificacionesPendientes, caso.pendiente);
    }
}

TEST_F(OrdenesLista, DobleClicEIntroAbren) {
    for (const bool raton : {true, false}) {
        abrir(QStringLiteral("A"));
        pulsarCelda(3, 2);
        declaracion.csde = 0;
        if (raton)
            dobleClic(3, 2);
        else
            tecla(Qt::Key_Return);
        EXPECT_EQ(pantallas.Tomar(), AlDatosGenerales);
        EXPECT_EQ(declaracion.Modo, QStringLiteral("C"));
        EXPECT_EQ(declaracion.csde, luis);
        EXPECT_FALSE(estado.ModificacionesPendientes);
    }
}

TEST_F(OrdenesLista, DobleClicEIntroEliminan) {
    abrir(QStringLiteral("E"));
    avisos.Espera(pregunta(), Respuesta::Si);
    dobleClic(2, 2);
    EXPECT_EQ(columna(2), (QStringList{QStringLiteral("EVA"), QStringLiteral("LUIS")}));
    rejilla()->setFocus();
    avisos.Espera(pregunta(), Respuesta::Si);
    tecla(Qt::Key_Enter);
    EXPECT_EQ(columna(2), QStringList{QStringLiteral("LUIS")});
    EXPECT_TRUE(pantallas.Tomar().isEmpty());
}

// One press deletes one declaration, however long it lasts.
TEST_F(OrdenesLista, IntroMantenidoNoHaceNada) {
    for (const auto* entrada : {u"E", u"A"}) {
        abrir(QString::fromUtf16(entrada));
        for (const auto codigo : {Qt::Key_Return, Qt::Key_Enter}) {
            QKeyEvent repetida(QEvent::KeyPress, codigo, Qt::NoModifier, QStringLiteral("\r"),
                               true);
            QApplication::sendEvent(rejilla(), &repetida);
        }
        EXPECT_EQ(rejilla()->model()->rowCount(), 3);
        EXPECT_TRUE(pantallas.Tomar().isEmpty());
    }
}

TEST_F(OrdenesLista, LasTeclasDeAcceso) {
    abrir(QStringLiteral("A"));
    teclaDeAcceso(u"cmdVerDeclaracion", Qt::Key_V);
    EXPECT_EQ(pantallas.Tomar(), AlDatosGenerales);
    teclaDeAcceso(u"cmdAnterior", Qt::Key_N);
    EXPECT_EQ(pantallas.Tomar(), AlMenu);
}

TEST_F(OrdenesLista, EliminarConNoNoCambiaNada) {
    abrir(QStringLiteral("E"));
    avisos.Espera(pregunta(), Respuesta::No);
    pulsar(u"CmdEliminar");
    EXPECT_EQ(rejilla()->model()->rowCount(), 3);
    EXPECT_EQ(estado.mdi.NUMDECLA, 3);
    EXPECT_TRUE(pantallas.Tomar().isEmpty());
    SvrDPadral::FilasDeclaracion filas;
    almacen.Servidor().CargarDeclaracion(eva, filas);
    EXPECT_EQ(filas.general.value(2).toString(), QStringLiteral("EVA"));
}

TEST_F(OrdenesLista, EliminarConSiQuitaLaDeclaracionConSusParticipes) {
    Fila participe(20);
    participe[1] = ana;
    Tabla tabla(20);
    tabla.Anadir(participe);
    almacen.Servidor().AñadirParticipe(tabla);
    abrir(QStringLiteral("E"));
    pulsarCelda(2, 1);
    avisos.Espera(pregunta(), Respuesta::Si);
    pulsar(u"CmdEliminar");
    EXPECT_EQ(columna(2), (QStringList{QStringLiteral("EVA"), QStringLiteral("LUIS")}));
    EXPECT_EQ(estado.mdi.NUMDECLA, 2);
    EXPECT_EQ(rotulo(u"lblResultado"), QStringLiteral("2 declaración(es) en la lista. "));
    EXPECT_EQ(lista.csde, eva) << "row 1 becomes the selection";
    EXPECT_TRUE(pantallas.Tomar().isEmpty());
    SvrDPadral::FilasDeclaracion filas;
    qint32 clave = ana;
    almacen.Servidor().CargarDeclaracion(clave, filas);
    EXPECT_EQ(filas.numParti, 0);
    EXPECT_EQ(filas.general.value(2).toString(), QString());
}

TEST_F(OrdenesLista, EliminarLaUltimaDejaLaLista) {
    lista.EliminarDeclaracion(luis);
    lista.EliminarDeclaracion(ana);
    abrir(QStringLiteral("E"));
    avisos.Espera(pregunta(), Respuesta::Si);
    pulsar(u"CmdEliminar");
    EXPECT_EQ(pantallas.Tomar(), AlMenu);
    EXPECT_EQ(estado.mdi.NUMDECLA, 0);
    estado.mdi.InicializarContadores();
    EXPECT_EQ(estado.mdi.NUMDECLA, 0);
}

TEST_F(OrdenesLista, EliminarLaUnicaDeUnaBusquedaDejaLaListaVacia) {
    abrir(QStringLiteral("E"));
    lista.GuardarCriterio(2, QStringLiteral("LUIS"));
    pantalla->PresentaDatos();
    pantalla->Presentabotones();
    avisos.Espera(pregunta(), Respuesta::Si);
    pulsar(u"CmdEliminar");
    EXPECT_EQ(estado.mdi.NUMDECLA, 2);
    EXPECT_TRUE(pantallas.Tomar().isEmpty());
    EXPECT_EQ(rotulo(u"lblResultado"), QStringLiteral("Nombre empieza por 'LUIS' ") + texto(574));
    EXPECT_FALSE(control(u"CmdEliminar")->isEnabled());
}

TEST_F(OrdenesLista, AnteriorDejaLaLista) {
    abrir(QStringLiteral("A"));
    pulsar(u"cmdAnterior");
    EXPECT_EQ(pantallas.Tomar(), AlMenu);
}

}  // namespace
}  // namespace padral::pruebas
