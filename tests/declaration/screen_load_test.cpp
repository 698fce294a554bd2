// What the load of the general data brings, by mode and by where the user comes from.

#include "declaration/screen_fixture.h"

namespace padral::pruebas {
namespace {

class Carga : public PantallaGeneral {
protected:
    void SetUp() override {
        PantallaGeneral::SetUp();
        guardada = almacen.Guardar({QStringLiteral("B12345674"), QStringLiteral("GUARDADA"),
                                    QStringLiteral("REF"), 20140102, QStringLiteral("M"), QString(),
                                    QStringLiteral("XX      ")});
        // What is left of the declaration open before.
        llenarTodo(d);
        g.NOMBRE = QStringLiteral("DE ANTES");
    }
    void abrirCon(const char16_t* modo, qint32 csde, const char16_t* origen) {
        d.Modo = q(modo);
        d.csde = csde;
        estado.FormularioOrigen = q(origen);
        abrir();
    }
    qint32 guardada = 0;
};

struct CasoCarga {
    const char16_t *modo, *origen;
    bool conClave;
    const char16_t* nombre;  ///< what the screen shows
    bool quedaClave;
};
class CargaPorModo : public Carga, public ::testing::WithParamInterface<CasoCarga> {};

TEST_P(CargaPorModo, TraeLoQueDice) {
    const auto& caso = GetParam();
    for (const bool pendientes : {false, true}) {
        llenarTodo(d);
        g.NOMBRE = QStringLiteral("DE ANTES");
        estado.ModificacionesPendientes = pendientes;
        abrirCon(caso.modo, caso.conClave ? guardada : 0, caso.origen);
        EXPECT_EQ(texto(u"txtNombre"), q(caso.nombre));
        EXPECT_EQ(g.NOMBRE, q(caso.nombre));
        EXPECT_EQ(d.csde, caso.quedaClave ? guardada : 0);
        EXPECT_EQ(estado.ModificacionesPendientes, pendientes) << "kept over the load";
        EXPECT_EQ(habilitado(u"cmdAnterior"), !pendientes);
        EXPECT_EQ(d.apartado5.APARTADO5LLENO, q(caso.nombre) == QStringLiteral("DE ANTES"));
    }
}
INSTANTIATE_TEST_SUITE_P(Filas, CargaPorModo,
                         ::testing::Values(CasoCarga{u"A", u"MDIPadral", false, u"", false},
                                           CasoCarga{u"A", u"FrmDecLista", false, u"", false},
                                           CasoCarga{u"C", u"FrmDecLista", true, u"GUARDADA", true},
                                           CasoCarga{u"C", u"MDIPadral", true, u"GUARDADA", true},
                                           CasoCarga{u"A", u"FrmDecLista", true, u"GUARDADA",
                                                     false},
                                           CasoCarga{u"", u"FrmDecLista", true, u"GUARDADA", false},
                                           CasoCarga{u"C", u"FrmImOf", true, u"DE ANTES", true},
                                           CasoCarga{u"C", u"", true, u"DE ANTES", true}));

TEST_F(Carga, DeVueltaDeUnApartadoNoSeCargaNada) {
    for (const auto* origen :
         {u"FrmApartado2", u"FrmApartado3", u"FrmApartado3_2015", u"frmApartado4",
          u"frmApartado4_2015", u"frmApartado5", u"frmApartado5_2015", u"frmApartado6",
          u"FrmApartado7", u"frmListaParticipes", u"frmDatosParticipe", u"frmAnexoII"})
        for (const auto* modo : {u"A", u"C"}) {
            SCOPED_TRACE(s(origen));
            abrirCon(modo, guardada, origen);
            EXPECT_EQ(texto(u"txtNombre"), QStringLiteral("DE ANTES"));
            EXPECT_EQ(g.Causa1, QStringLiteral("I"));
            EXPECT_EQ(d.csde, guardada);
            for (const auto a : SeccionesConRegistro) EXPECT_TRUE(lleno(d, a));
            EXPECT_EQ(estado.FormularioOrigen, q(origen));
        }
}

TEST_F(Carga, UnaNuevaNoHeredaElApartado5Marcado) {
    g.Apartado5 = QStringLiteral("X");
    abrirCon(u"A", 0, u"MDIPadral");
    d.MarcarApartados();
    EXPECT_EQ(g.ObtenerDatos()[12].toString(), QString(8, u' '));
}

TEST_F(Carga, EmpiezaEnLaPestanaDeLaSolicitud) {
    abrirCon(u"C", guardada, u"FrmDecLista");
    EXPECT_EQ(c<QTabBar>(u"Pestaña")->currentIndex(), 0);
    EXPECT_TRUE(visible(u"FraSolicitud"));
    EXPECT_FALSE(visible(u"FraModificacion"));
}

TEST_F(Carga, MotivosDeCambioEnElIdioma) {
    const auto items = [this] {
        const auto* combo = c<QComboBox>(u"cmbMotivoCambio");
        QStringList textos;
        for (int i = 0; i < combo->count(); ++i) textos << combo->itemText(i).left(2);
        return textos.join(u' ');
    };
    abrirCon(u"A", 0, u"MDIPadral");
    EXPECT_EQ(items(), QStringLiteral("00 10 20 30 31"));
    EXPECT_EQ(c<QComboBox>(u"cmbMotivoCambio")->currentText(), QStringLiteral("00-No hay cambios"));
    enEuskera();
    abrirCon(u"A", 0, u"MDIPadral");
    EXPECT_EQ(items(), QStringLiteral("00 10 20 30 31"));
    EXPECT_EQ(c<QComboBox>(u"cmbMotivoCambio")->currentText(),
              QStringLiteral("00-Ez dago aldaketarik"));
}

TEST_F(Carga, CargarNoMuestraNiDescargaNada) {
    abrirCon(u"C", guardada, u"FrmDecLista");
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}

}  // namespace
}  // namespace padral::pruebas
