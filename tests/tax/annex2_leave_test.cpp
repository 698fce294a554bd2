// The three ways out of Annex II.

#include "tax/annex2_fixture.h"

namespace padral::pruebas {
namespace {

struct SalidaAnexo {
    const char16_t *boton, *imagen, *destino;
};
void PrintTo(const SalidaAnexo& caso, std::ostream* salida) { *salida << s(caso.boton); }

constexpr SalidaAnexo Comprobadas[] = {{u"cmdInicio", u"PicInicio", u"FrmDatGen"},
                                       {u"cmdAnterior", u"PicAnterior", u"FrmApartado7"}};

class Salidas2 : public PantallaAnexoII, public ::testing::WithParamInterface<SalidaAnexo> {
protected:
    void SetUp() override {
        PantallaAnexoII::SetUp();
        valida();
        g.Apartado7 = q(u"X");
        estado.FormularioOrigen = q(u"MDIPadral");
    }
    void sale() {
        EXPECT_EQ(pantallas.Tomar(), salida(GetParam().destino));
        EXPECT_FALSE(pantallas.EnEspera());
        EXPECT_EQ(estado.FormularioOrigen, q(u"frmAnexoII"));
    }
};

TEST_P(Salidas2, SinCambiosSaleSinMas) {
    for (const auto* nombre : {GetParam().boton, GetParam().imagen}) {
        abrir();
        sinCambios([&] { pulsar(nombre); });
        sale();
        EXPECT_FALSE(r.Lleno);
        EXPECT_FALSE(estado.ModificacionesPendientes);
    }
}

TEST_P(Salidas2, ConCambiosSeAcepta) {
    for (const auto* nombre : {GetParam().boton, GetParam().imagen}) {
        valida();
        estado.ModificacionesPendientes = false;
        abrir();
        const int esperas = pantallas.EsperasTotales;
        pulsar(u"chklbl2Si");
        pulsar(nombre);
        sale();
        EXPECT_EQ(pantallas.EsperasTotales, esperas + 1);
        EXPECT_TRUE(r.Lleno);
        EXPECT_FALSE(r.Modificaciones);
        EXPECT_TRUE(estado.ModificacionesPendientes);
        EXPECT_EQ(auxiliar().OtrosEstablecimientos, q(u"S"));
        EXPECT_TRUE(auxiliar().Lleno);
    }
}

TEST_P(Salidas2, ConCambiosNoValidosSeQueda) {
    abrir();
    pulsar(u"chklbl5Si");
    for (const auto* nombre : {GetParam().boton, GetParam().imagen}) {
        esperaAviso(742, 743);
        sinCambios([&] { pulsar(nombre); });
        avisos.Verificar();
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_FALSE(pantallas.EnEspera());
    }
    EXPECT_TRUE(r.Modificaciones);
    EXPECT_FALSE(r.Lleno);
    EXPECT_FALSE(estado.ModificacionesPendientes);
    EXPECT_EQ(auxiliar().Obligado, QString()) << "the copy stays";
}

TEST_P(Salidas2, ElUltimoCampoSeGuardaAntes) {
    conDomicilio();
    abrir();
    escribir(u"txtFormaJuridica", u"plc");
    pulsar(GetParam().boton);
    sale();
    EXPECT_EQ(r.FormaJuridica, q(u"PLC"));
    EXPECT_TRUE(r.Lleno);
}
INSTANTIATE_TEST_SUITE_P(Botones, Salidas2, ::testing::ValuesIn(Comprobadas));

TEST_F(PantallaAnexoII, AnteriorVaALoQueHayaMarcado) {
    const std::pair<QString DatosGeneralesStore::*, const char16_t*> anteriores[] = {
        {&DatosGeneralesStore::Apartado2, u"FrmApartado2"},
        {&DatosGeneralesStore::Apartado5, u"frmApartado5"},
        {&DatosGeneralesStore::Apartado7, u"FrmApartado7"}};
    for (const auto& [bandera, destino] : anteriores) {
        g.Apartado2 = g.Apartado5 = g.Apartado7 = q(u" ");
        g.*bandera = q(u"X");
        valida();
        abrir();
        pulsar(u"cmdAnterior");
        EXPECT_EQ(pantallas.Tomar(), salida(destino));
    }
    g.AnexoI = q(u"X");
    ponerParticipe(u"12345678Z", u"A");
    abrir();
    pulsar(u"cmdAnterior");
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmListaParticipes"));
}

TEST_F(PantallaAnexoII, AnteriorSinParticipesEmpiezaUnoNuevo) {
    g.AnexoI = q(u"X");
    const auto borrado = ponerParticipe(u"12345678Z", u"E", 3);
    d.DecrementarNumParti();
    d.participantes.ParticipeActual = borrado;
    valida();
    abrir();
    pulsar(u"cmdAnterior");
    EXPECT_EQ(pantallas.Tomar(), salida(u"frmDatosParticipe"));
    EXPECT_EQ(estado.FormularioOrigen, q(u"frmAnexoII"));
    const auto actual = d.participantes.ParticipeActual;
    ASSERT_NE(actual, borrado);
    EXPECT_EQ(actual->Modo.texto(), q(u"A"));
    EXPECT_TRUE(actual->MODIFPARTICIPES);
    EXPECT_TRUE(actual->DNI.vacio());
    EXPECT_EQ(borrado->Modo.texto(), q(u"E"));
    EXPECT_EQ(borrado->DNI.recortado(), q(u"12345678Z"));
}

// The screen changes under the wait cursor, which goes with the old one.
TEST_F(PantallaAnexoII, CancelarEsperaMientrasSale) {
    for (const auto* nombre : {u"cmdCancelar", u"PicCan"})
        for (const bool cambios : {false, true}) {
            valida();
            abrir();
            if (cambios) pulsar(u"chklbl2Si");
            const int esperas = pantallas.EsperasTotales;
            QList<bool> enEspera;
            pantallas.alLlamar = [&](const QString&) { enEspera << pantallas.EnEspera(); };
            pulsar(nombre);
            pantallas.alLlamar = {};
            EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
            EXPECT_EQ(enEspera, QList<bool>({true, true}));
            EXPECT_EQ(pantallas.EsperasTotales, esperas + 1);
            EXPECT_FALSE(pantallas.EnEspera());
        }
}

TEST_F(PantallaAnexoII, CancelarDevuelveLoAceptadoYVaALosDatosGenerales) {
    g.Apartado2 = g.Apartado7 = g.AnexoI = q(u"X");
    for (const auto* nombre : {u"cmdCancelar", u"PicCan"}) {
        completo();
        abrir();
        const A2 antes = r;
        pulsar(u"chklbl1No");
        pulsar(u"chklbl5No");
        pulsar(u"chkOpcion");
        rellenar(u"txtDomicilio", u"otra calle");
        rellenar(u"numCodigoProvincia", u"20");
        EXPECT_FALSE(datos() == antes);
        pulsar(nombre);
        EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen")) << "not to the section before";
        EXPECT_TRUE(datos() == antes);
        EXPECT_FALSE(r.Modificaciones);
        EXPECT_EQ(estado.FormularioOrigen, q(u"frmAnexoII"));
        EXPECT_FALSE(estado.ModificacionesPendientes);
        EXPECT_FALSE(pantallas.EnEspera());
    }
}

TEST_F(PantallaAnexoII, CancelarTrasAceptarNoDejaCambiosPendientes) {
    valida();
    abrir();
    pulsar(u"chklbl2Si");
    pulsar(u"cmdInicio");
    estado.ModificacionesPendientes = false;
    abrir();
    pulsar(u"chklbl4Si");
    pulsar(u"cmdCancelar");
    EXPECT_EQ(r.Aplicacion, q(u"S"));
    EXPECT_EQ(r.OtrosEstablecimientos, q(u"S"));
    EXPECT_TRUE(r.Lleno);
    EXPECT_FALSE(r.Modificaciones);
    EXPECT_FALSE(d.HayModificaciones());
}

TEST_F(PantallaAnexoII, CancelarSinCambiosNoTocaElRegistro) {
    valida();
    conDomicilio();
    abrir();
    sinCambios([&] { pulsar(u"cmdCancelar"); });
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
}

// Opening from 2014 on empties the option: no change of the user.
TEST_F(PantallaAnexoII, CancelarYLaOpcionQueSeVacioAlAbrir) {
    for (const bool otroCambio : {false, true}) {
        completo();
        abrir(20140101);
        ASSERT_EQ(r.OpcionApl, QString());
        if (otroCambio) pulsar(u"chklbl2Si");
        pulsar(u"cmdCancelar");
        EXPECT_EQ(r.OpcionApl, otroCambio ? q(u"R") : QString());
        EXPECT_EQ(r.OtrosEstablecimientos, q(u"S"));
    }
}

TEST_F(PantallaAnexoII, ElInicioDeLaVentanaEsElDelBoton) {
    valida();
    abrir();
    pulsar(u"chklbl2Si");
    static_cast<frmAnexoII*>(pantalla.get())->IrAInicio();
    EXPECT_EQ(pantallas.Tomar(), salida(u"FrmDatGen"));
    EXPECT_TRUE(r.Lleno);
}

TEST_F(PantallaAnexoII, LasFlechasVanDeBotonEnBoton) {
    abrir();
    enfocar(u"cmdInicio");
    QStringList visitados;
    for (int i = 0; i < 4; ++i) {
        visitados << foco();
        tecla(i % 2 ? Qt::Key_Down : Qt::Key_Right);
    }
    EXPECT_EQ(visitados, (QStringList{q(u"cmdInicio"), q(u"cmdCancelar"), q(u"cmdAnterior"),
                                      q(u"cmdAnterior")}));
}

TEST_F(PantallaAnexoII, LoTecleadoLlegaALaFila) {
    abrir();
    rellenar(u"txtDomicilio", u"12 high street");
    rellenar(u"txtNombreMunicipio", u"londres");
    rellenar(u"txtNacionalidad", u"britanica");
    rellenar(u"txtFormaJuridica", u"limited");
    rellenar(u"txtNIF", u"12345678z");
    rellenar(u"txtNombre", u"persona una");
    rellenar(u"txtNacionalidadRep", u"kelmariana");
    rellenar(u"txtRepDomicilio", u"calle mayor 7");
    rellenar(u"numCodigoProvincia", u"20");
    rellenar(u"numCodigoMunicipio", u"1");
    for (const auto* casilla : {u"chklbl1Si", u"chkNoCierra", u"chklbl2Si", u"chklbl5Si",
                                u"chklbl6No", u"chklbl4Si", u"chkRevocacion"})
        pulsar(casilla);
    rellenar(u"numPorcentaje", u"35");
    pulsar(u"cmdInicio");
    ASSERT_TRUE(r.Lleno);
    const Fila esperada = {q(u"12 HIGH STREET"),
                           q(u"LONDRES"),
                           q(u"BRITANICA"),
                           q(u"LIMITED"),
                           q(u"S"),
                           q(u"C"),
                           q(u"S"),
                           q(u"12345678Z"),
                           q(u"PERSONA UNA"),
                           q(u"KELMARIANA"),
                           q(u"CALLE MAYOR 7"),
                           1,
                           q(u"Aldabarri"),
                           20,
                           q(u"S"),
                           q(u"N"),
                           q(u"S"),
                           q(u"R"),
                           35};
    EXPECT_EQ(r.ObtenerDatos(), esperada);
}

}  // namespace
}  // namespace padral::pruebas
