// The 27 rows of the member states: which boxes stand beside which label, and what they write.

#include "declaration/full_declaration.h"
#include "tax/section7_fixture.h"

namespace padral::pruebas {
namespace {

QString casilla(const Columna7& columna, const Estado7& estado) {
    return q(columna.prefijo) + QString::number(estado.sufijo);
}

class Estados7EnPantalla : public PantallaApartado7, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        PantallaApartado7::SetUp();
        if (GetParam()) enEuskera();
        abrir();
    }
};

TEST_P(Estados7EnPantalla, CadaFilaLlevaSuNombre) {
    for (const auto& e : Estados7) {
        EXPECT_EQ(c<QLabel>(q(e.etiqueta))->text(), q(GetParam() ? e.euskera : e.castellano));
        EXPECT_EQ(c<QLabel>(q(e.etiqueta))->buddy(), c(casilla(Columnas7[0], e)));
    }
}

TEST_P(Estados7EnPantalla, LasCuatroCasillasEstanJuntoASuNombre) {
    for (const int ancho : {1240, 1280, 1000}) {
        pantalla->resize(ancho, 600);
        QCoreApplication::processEvents();
        int debajoDe = 0;
        for (const auto& e : Estados7) {
            SCOPED_TRACE(s(e.etiqueta));
            const QRect etiqueta = lugar(q(e.etiqueta));
            EXPECT_GE(etiqueta.top(), debajoDe) << "in the order of the form";
            debajoDe = etiqueta.bottom();
            int trasDe = etiqueta.right();
            for (const auto& columna : Columnas7) {
                const QRect caja = lugar(casilla(columna, e));
                EXPECT_NEAR(caja.center().y(), etiqueta.center().y(), 1);
                EXPECT_GE(caja.left(), trasDe);
                trasDe = caja.right();
                EXPECT_EQ(caja.left(), lugar(casilla(columna, Estados7[0])).left());
                EXPECT_EQ(caja.size(), lugar(casilla(columna, Estados7[0])).size());
            }
        }
    }
}

TEST_P(Estados7EnPantalla, LasCabecerasEstanSobreSuColumna) {
    const auto izquierda = [this](const char16_t* nombre) { return lugar(q(nombre)).left(); };
    EXPECT_EQ(izquierda(u"Label6"), izquierda(u"chkLimSupPais1"));
    EXPECT_EQ(izquierda(u"Label7"), izquierda(u"chkLimInfPais1"));
    EXPECT_EQ(izquierda(u"Label8"), izquierda(u"chkDestPais1"));
    EXPECT_EQ(izquierda(u"Label9"), izquierda(u"chkRevPais1"));
    EXPECT_EQ(izquierda(u"Label5"), izquierda(u"Label6"));
    EXPECT_GT(lugar(q(u"Label5")).right(), izquierda(u"chkLimInfPais1"));
    for (const auto* cabecera : {u"Label6", u"Label7", u"Label8", u"Label9"}) {
        EXPECT_LE(lugar(q(cabecera)).bottom(), lugar(q(u"chkLimSupPais1")).top());
        EXPECT_EQ(lugar(q(cabecera)).bottom(), lugar(q(u"Label6")).bottom());
    }
    EXPECT_LE(lugar(q(u"Label5")).bottom(), lugar(q(u"Label6")).top());
}

TEST_P(Estados7EnPantalla, CadaCasillaEscribeLoSuyoPorSuSufijo) {
    for (const auto& e : Estados7)
        for (const auto& columna : Columnas7) {
            const QString nombre = casilla(columna, e);
            SCOPED_TRACE(nombre.toStdString());
            pulsar(nombre);
            D7 esperado;
            esperado.Modificaciones = true;
            auto& respuestas =
                columna.desplazamiento == -2 ? esperado.LimSupPais : esperado.DestRevocPais;
            respuestas.at(static_cast<std::size_t>(e.sufijo) - 1) = q(columna.valor);
            EXPECT_TRUE(datos() == esperado);
            EXPECT_EQ(r.ObtenerDatos(),
                      filaCon({{2 * e.sufijo + columna.desplazamiento, q(columna.valor)}}));
            pulsar(nombre);
        }
}
INSTANTIATE_TEST_SUITE_P(Idiomas, Estados7EnPantalla, ::testing::Bool(),
                         [](const auto& i) { return i.param ? "Euskera" : "Castellano"; });

TEST_F(PantallaApartado7, LaFilaDeBulgariaEscribeLasPosiciones48Y49) {
    abrir();
    EXPECT_EQ(lugar(q(u"chkLimSupPais25")).center().y(), lugar(q(u"lblBulgaria")).center().y());
    EXPECT_NE(lugar(q(u"chkLimSupPais4")).center().y(), lugar(q(u"lblBulgaria")).center().y());
    pulsar(q(u"chkLimSupPais25"));
    pulsar(q(u"chkRevPais25"));
    EXPECT_EQ(r.LimSupPais[24], q(u"S"));
    EXPECT_EQ(r.DestRevocPais[24], q(u"R"));
    EXPECT_EQ(r.LimSupPais[3], QString());
    EXPECT_EQ(r.ObtenerDatos(), filaCon({{48, q(u"S")}, {49, q(u"R")}}));
}

/// Every row with answers of its own, stored, read again and shown.
TEST_F(PantallaApartado7, DeLasCasillasAlAlmacenYDeVuelta) {
    const auto respuestasDe = [](std::size_t fila) {
        const std::vector<std::size_t> combinaciones[] = {{0}, {1, 3}, {2}, {}, {0, 2}, {1}, {3}};
        return combinaciones[fila % std::size(combinaciones)];
    };
    generalesValidos(g);
    abrir();
    QStringList puestas;
    Fila esperada(59, QVariant(QString()));
    for (std::size_t i = 0; i < std::size(Estados7); ++i)
        for (const auto columna : respuestasDe(i)) {
            const auto& de = Columnas7[columna];
            puestas << casilla(de, Estados7[i]);
            pulsar(puestas.last());
            esperada[2 * Estados7[i].sufijo + de.desplazamiento] = q(de.valor);
        }
    for (const auto* otra : {u"chkExentos", u"chkMenosLimEuros", u"chkOpcion"}) {
        puestas << q(otra);
        pulsar(q(otra));
    }
    esperada[55] = q(u"S");
    esperada[57] = q(u"N");
    esperada[58] = q(u"O");
    EXPECT_EQ(marcadas(), puestas);
    pulsar(q(u"cmdInicio"));
    d.MarcarApartados();
    d.csde = d.GuardarDeclaracion();
    cerrar();
    d.InicializarDeclaracion();
    d.CargarDeclaracion();
    EXPECT_EQ(r.ObtenerDatos(), esperada);
    EXPECT_TRUE(r.Lleno);
    abrir();
    EXPECT_EQ(marcadas(), puestas);
}

}  // namespace
}  // namespace padral::pruebas
