// How the declarations list fills its room, wide and narrow.

#include <QScrollBar>

#include "screen_fixture.h"

namespace padral::pruebas {
namespace {

class AnchoLista : public PantallaLista {
protected:
    void ponerAncho(int ancho) {
        pantalla->resize(ancho, 330);
        QApplication::processEvents();
    }
    int anchoVisible() const { return rejilla()->viewport()->width(); }
    int sumaColumnas() const {
        int total = 0;
        for (int c = 1; c <= 6; ++c) total += rejilla()->columnWidth(c);
        return total;
    }
};

TEST_F(AnchoLista, LasColumnasGuardanSuProporcionYLaSegundaLlevaElResto) {
    const int partes[] = {1000, 3050, 750, 1050, 2300, 1000};
    abrir(QStringLiteral("A"));
    ponerAncho(3000);
    const int ancho = anchoVisible();
    ASSERT_GT(ancho, 2900);
    int resto = ancho;
    for (int c = 1; c <= 6; ++c) {
        if (c == 2) continue;
        EXPECT_EQ(rejilla()->columnWidth(c), ancho * partes[c - 1] / 9150) << c;
        resto -= rejilla()->columnWidth(c);
    }
    EXPECT_EQ(rejilla()->columnWidth(2), resto);
    EXPECT_NEAR(rejilla()->columnWidth(2), ancho * 3050 / 9150, 6);
}

TEST_F(AnchoLista, CabeEnUnaPantallaPequenaAumentadaAlDoble) {
    for (int i = 0; i < 60; ++i)
        almacen.Guardar({QStringLiteral("00%1").arg(i), QString(40, u'N'), QString(10, u'W'), 0,
                         QString(), QStringLiteral("B"), QString(8, u'X')});
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        for (const auto* entrada : {u"A", u"E"}) {
            abrir(QString::fromUtf16(entrada));
            EXPECT_LT(pantalla->minimumSizeHint().width(), 630);
            for (int ancho = 630; ancho <= 1280; ancho += 10) {
                ponerAncho(ancho);
                EXPECT_EQ(pantalla->width(), ancho);
                EXPECT_TRUE(rejilla()->verticalScrollBar()->isVisible());
                EXPECT_EQ(sumaColumnas(), anchoVisible()) << ancho;
                EXPECT_EQ(rejilla()->horizontalScrollBar()->maximum(), 0) << ancho;
            }
        }
    }
}

TEST_F(AnchoLista, LosBotonesCabenEnterosYSinTaparse) {
    abrir(QStringLiteral("A"));
    for (const int ancho : {1280, 630, 480, 1280}) {
        ponerAncho(ancho);
        QRegion ocupado;
        for (const auto* boton : pantalla->findChildren<QPushButton*>()) {
            if (!boton->isVisible()) continue;
            const QRect sitio(boton->mapTo(pantalla.get(), QPoint()), boton->size());
            EXPECT_GE(sitio.width(), boton->minimumSizeHint().width()) << ancho;
            EXPECT_TRUE(pantalla->rect().contains(sitio)) << ancho;
            EXPECT_FALSE(ocupado.intersects(sitio)) << ancho;
            ocupado += sitio;
        }
        const bool unaFila = control(u"cmdAnterior")->mapTo(pantalla.get(), QPoint()).y() ==
                             control(u"CmdNuevo")->mapTo(pantalla.get(), QPoint()).y();
        EXPECT_EQ(unaFila, ancho == 1280) << ancho;
    }
}

}  // namespace
}  // namespace padral::pruebas
