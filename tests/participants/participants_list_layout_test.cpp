// The participants list, small and with big letters: nothing cut, nothing over another.

#include <QScrollBar>

#include "participants/participants_list_fixture.h"
#include "screens/screen_aspects.h"

namespace padral::pruebas {
namespace {

class AspectoLista : public ConAspecto<ListaParticipes> {
protected:
    void verComoQueda(const char* momento) {
        SCOPED_TRACE(momento);
        QCoreApplication::processEvents();
        revisar();
        int ancho = 0;
        for (int c = 1; c <= 5; ++c) ancho += rejilla()->columnWidth(c);
        EXPECT_EQ(ancho, rejilla()->viewport()->width());
    }
};

TEST_P(AspectoLista, NadaSaleCortado) {
    g.AnexoII = q(u"X");
    tres();
    poner(20);
    abrir();
    EXPECT_LE(pantalla->minimumSizeHint().width(), 1240);
    EXPECT_LE(pantalla->minimumSizeHint().height(), 600);
    verComoQueda("list");
    pulsarCabecera(1);
    verComoQueda("sorted");
    pulsar(u"cmdBuscar");
    teclear(u"W88888888");
    verComoQueda("search, identifier");
    pulsarCabecera(2);
    teclear(u"lu");
    verComoQueda("search, name");
    tecla(Qt::Key_Return);
    verComoQueda("result");
}
INSTANTIATE_TEST_SUITE_P(Tamanos, AspectoLista,
                         ::testing::Values(Aspecto{false, 1}, Aspecto{true, 1}, Aspecto{false, 1.5},
                                           Aspecto{true, 1.5}));

using TamanoLista = ListaParticipes;

TEST_F(TamanoLista, UnNifEnteroCabeEnSuColumnaYUnPorcentajeTambien) {
    tres();
    abrir();
    for (const auto& [columna, texto] : {std::pair{1, q(u"W88888888")}, {5, q(u"100,00")}})
        EXPECT_LT(rejilla()->fontMetrics().horizontalAdvance(texto) + 8,
                  rejilla()->columnWidth(columna));
    EXPECT_TRUE(rejilla()->model()->index(0, 5).data(Qt::TextAlignmentRole).toInt() &
                Qt::AlignRight);
}

TEST_F(TamanoLista, LosBotonesTomanDosLineasDondeNoCaben) {
    tres();
    abrir();
    const auto altura = [this](const char16_t* nombre) {
        return c(nombre)->mapTo(pantalla.get(), QPoint()).y();
    };
    for (const auto& [ancho, unaLinea] : {std::pair{1240, true}, {640, false}, {1240, true}}) {
        pantalla->resize(ancho, 600);
        QCoreApplication::processEvents();
        EXPECT_EQ(pantalla->width(), ancho);
        EXPECT_EQ(altura(u"cmdInicio") == altura(u"CmdNuevo"), unaLinea) << ancho;
        const auto faltas = RotulosCortados(*pantalla);
        EXPECT_TRUE(faltas.isEmpty()) << ancho << '\n' << faltas.join(u'\n').toStdString();
    }
}

}  // namespace
}  // namespace padral::pruebas
