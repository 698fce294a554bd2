// The row of buttons at the foot of a section screen.

#include "ui/section_buttons.h"

#include <QAccessible>
#include <QPixmap>

#include "support/recorders.h"
#include "ui/art.h"
#include "ui/window_fixture.h"

namespace padral::pruebas {
namespace {

constexpr BotonApartado BotonesDePrueba[] = {
    {u"cmdInicio", u"PicInicio", u"home", 670, 671},
    {u"cmdCancelar", u"PicCan", u"cancel", 14, 96},
    {u"cmdApartadoAnterior", u"PicAnterior", u"back", 95, 11},
    {u"cmdApartadoSiguiente", u"PicSiguiente", u"next", 94, 13},
};

class FilaDeBotones : public ::testing::Test {
protected:
    void SetUp() override {
        caja->addWidget(campo);
        caja->addWidget(botones);
        for (std::size_t i = 0; i < std::size(BotonesDePrueba); ++i)
            QObject::connect(botones->Boton(i), &QPushButton::clicked,
                             [this, i] { hechos << QString::fromUtf16(BotonesDePrueba[i].boton); });
        botones->Anadir_captions(estado);
        ventana.resize(900, 200);
        ventana.show();
        ventana.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    }
    void enEuskera() {
        estado.DesplazamientoIdioma = 10000;
        botones->Anadir_captions(estado);
    }
    QString enFoco() const {
        const auto* foco = QApplication::focusWidget();
        return foco ? foco->objectName() : QString();
    }

    GrabadorAvisos avisos;
    RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    QWidget ventana;
    QVBoxLayout* caja = new QVBoxLayout(&ventana);
    CampoTexto* campo = new CampoTexto(QStringLiteral("campo"), 9, &ventana);
    BotonesApartado* botones = new BotonesApartado(BotonesDePrueba, 1, &ventana);
    QStringList hechos;
};

TEST_F(FilaDeBotones, RotulosAyudasYNombresEnLosDosIdiomas) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        for (std::size_t i = 0; i < std::size(BotonesDePrueba); ++i) {
            const QString texto = estado.Texto(BotonesDePrueba[i].texto);
            EXPECT_EQ(botones->Boton(i)->objectName(),
                      QString::fromUtf16(BotonesDePrueba[i].boton));
            EXPECT_EQ(botones->Imagen(i)->objectName(),
                      QString::fromUtf16(BotonesDePrueba[i].imagen));
            EXPECT_EQ(botones->Boton(i)->text(), texto);
            for (QWidget* w : {static_cast<QWidget*>(botones->Boton(i)),
                               static_cast<QWidget*>(botones->Imagen(i))}) {
                EXPECT_EQ(w->toolTip(), estado.Texto(BotonesDePrueba[i].ayuda));
                EXPECT_EQ(QAccessible::queryAccessibleInterface(w)->text(QAccessible::Name),
                          QString(texto).remove(u'&').trimmed());
            }
        }
    }
    EXPECT_EQ(botones->Boton(0)->text(), QStringLiteral("   &Hasiera"));
    EXPECT_EQ(botones->Imagen(0)->accessibleName(), QStringLiteral("Hasiera"));
}

TEST_F(FilaDeBotones, CadaBotonTieneSuDibujo) {
    for (const auto& fila : BotonesDePrueba)
        EXPECT_FALSE(Dibujo(QString::fromUtf16(fila.dibujo)).pixmap(22, 22).isNull())
            << QString::fromUtf16(fila.dibujo).toStdString();
    EXPECT_NE(Dibujo(QStringLiteral("next")).pixmap(22, 22).toImage(),
              Dibujo(QStringLiteral("back")).pixmap(22, 22).toImage());
    for (std::size_t i = 0; i < std::size(BotonesDePrueba); ++i)
        EXPECT_FALSE(botones->Imagen(i)->pixmap(Qt::ReturnByValue).isNull());
}

TEST_F(FilaDeBotones, EstanEnSuOrdenConElPrimerGrupoALaIzquierda) {
    const auto x = [this](QWidget* w) { return w->mapTo(botones, QPoint()).x(); };
    for (std::size_t i = 0; i < std::size(BotonesDePrueba); ++i) {
        EXPECT_LT(x(botones->Imagen(i)), x(botones->Boton(i)));
        if (i > 0) {
            EXPECT_LT(x(botones->Boton(i - 1)), x(botones->Imagen(i)));
        }
    }
    EXPECT_EQ(x(botones->Imagen(0)), 0);
    EXPECT_EQ(x(botones->Boton(3)) + botones->Boton(3)->width(), botones->width());
    EXPECT_GT(x(botones->Imagen(1)) - x(botones->Boton(0)) - botones->Boton(0)->width(), 100);
}

TEST_F(FilaDeBotones, ElGrupoPrimeroPuedeSerNingunoOTodos) {
    for (const std::size_t alPrincipio : {std::size_t{0}, std::size(BotonesDePrueba)}) {
        BotonesApartado otros(BotonesDePrueba, alPrincipio, nullptr);
        otros.Anadir_captions(estado);
        otros.resize(900, 40);
        otros.show();
        QCoreApplication::processEvents();
        const auto* ultimo = otros.Boton(3);
        EXPECT_EQ(otros.Imagen(0)->x() == 0, alPrincipio > 0);
        EXPECT_EQ(ultimo->x() + ultimo->width() == otros.width(), alPrincipio == 0);
    }
}

// A window that is too narrow scrolls; the captions stay whole.
TEST_F(FilaDeBotones, LosRotulosCabenConCualquierLetra) {
    for (const bool euskera : {false, true})
        for (const int puntos : {9, 20}) {
            if (euskera) enEuskera();
            QFont fuente = ventana.font();
            fuente.setPointSize(puntos);
            botones->setFont(fuente);
            ventana.resize(ventana.minimumSizeHint());
            QCoreApplication::processEvents();
            for (std::size_t i = 0; i < std::size(BotonesDePrueba); ++i) {
                const auto* boton = botones->Boton(i);
                const QString texto = QString(boton->text()).remove(u'&');
                EXPECT_EQ(boton->font().pointSize(), puntos);
                EXPECT_GT(boton->width(), boton->fontMetrics().horizontalAdvance(texto));
            }
        }
}

/// Columns of the button's middle line of text that differ from its background.
QRect tinta(QPushButton* boton) {
    const QImage foto = boton->grab().toImage().convertToFormat(QImage::Format_RGB32);
    QRect letras;
    for (int y = 4; y < foto.height() - 4; ++y)
        for (int x = 6; x < foto.width() - 6; ++x)
            if (qGray(foto.pixel(x, y)) < 110) letras |= QRect(x, y, 1, 1);
    return letras;
}

TEST_F(FilaDeBotones, LosBlancosDelRotuloNoLoDescentran) {
    QPalette clara;
    clara.setColor(QPalette::Button, Qt::white);
    clara.setColor(QPalette::ButtonText, Qt::black);
    botones->setPalette(clara);
    for (const std::size_t i : {0U, 2U, 3U}) {
        auto* boton = botones->Boton(i);
        ASSERT_TRUE(boton->text().startsWith(u' '));
        const QRect letras = tinta(boton);
        ASSERT_FALSE(letras.isEmpty());
        const int izquierda = letras.left();
        const int derecha = boton->width() - 1 - letras.right();
        EXPECT_NEAR(izquierda, derecha, 4) << boton->text().toStdString();
    }
}

struct CasoFlecha {
    Qt::Key tecla;
    int desde, hasta;
};

constexpr CasoFlecha CasosFlecha[] = {
    {Qt::Key_Right, 0, 1}, {Qt::Key_Down, 0, 1}, {Qt::Key_Right, 1, 2}, {Qt::Key_Down, 2, 3},
    {Qt::Key_Left, 3, 2},  {Qt::Key_Up, 3, 2},   {Qt::Key_Left, 1, 0},  {Qt::Key_Up, 2, 1},
    {Qt::Key_Left, 0, 0},  {Qt::Key_Up, 0, 0},   {Qt::Key_Right, 3, 3}, {Qt::Key_Down, 3, 3},
};

TEST_F(FilaDeBotones, LasFlechasVanDeBotonEnBoton) {
    for (const auto& caso : CasosFlecha) {
        botones->Boton(static_cast<std::size_t>(caso.desde))->setFocus();
        Teclear(botones, caso.tecla);
        EXPECT_EQ(enFoco(), QString::fromUtf16(BotonesDePrueba[caso.hasta].boton))
            << caso.tecla << ' ' << caso.desde;
    }
    EXPECT_EQ(hechos, QStringList());
}

/// Which buttons are off, as bits; the arrows pass them by and stop before an end that is off.
struct CasoSalto {
    unsigned apagados;
    Qt::Key tecla;
    int desde, hasta;
};

constexpr CasoSalto CasosSalto[] = {
    {0b0010, Qt::Key_Right, 0, 2}, {0b0010, Qt::Key_Left, 2, 0},  {0b0110, Qt::Key_Down, 0, 3},
    {0b0110, Qt::Key_Up, 3, 0},    {0b1000, Qt::Key_Right, 2, 2}, {0b0001, Qt::Key_Left, 1, 1},
    {0b1110, Qt::Key_Right, 0, 0},
};

TEST_F(FilaDeBotones, LasFlechasSaltanLosApagados) {
    for (const auto& caso : CasosSalto)
        for (const bool ocultos : {false, true}) {
            for (std::size_t i = 0; i < std::size(BotonesDePrueba); ++i) {
                const bool apagado = (caso.apagados >> i & 1U) != 0;
                botones->Habilitar(i, ocultos || !apagado);
                botones->Boton(i)->setVisible(!ocultos || !apagado);
            }
            botones->Boton(static_cast<std::size_t>(caso.desde))->setFocus();
            Teclear(botones, caso.tecla);
            EXPECT_EQ(enFoco(), QString::fromUtf16(BotonesDePrueba[caso.hasta].boton))
                << caso.apagados << ' ' << caso.desde << ' ' << ocultos;
        }
}

TEST_F(FilaDeBotones, IntroPulsaElDelFocoYEscapeNada) {
    botones->Boton(2)->setFocus();
    Teclear(botones, Qt::Key_Return);
    botones->Boton(1)->setFocus();
    Teclear(botones, Qt::Key_Enter);
    Teclear(botones, Qt::Key_Escape);
    EXPECT_EQ(hechos,
              QStringList({QStringLiteral("cmdApartadoAnterior"), QStringLiteral("cmdCancelar")}));
    EXPECT_TRUE(botones->Boton(1)->hasFocus());
    Teclear(botones, Qt::Key_Space);
    EXPECT_EQ(hechos.size(), 3);
}

TEST_F(FilaDeBotones, UnIntroMantenidoNoPulsa) {
    botones->Boton(3)->setFocus();
    Repetir(botones->Boton(3), Qt::Key_Return);
    EXPECT_EQ(hechos, QStringList());
}

TEST_F(FilaDeBotones, LaImagenHaceLoMismoQueSuBoton) {
    for (std::size_t i = 0; i < std::size(BotonesDePrueba); ++i) {
        Pulsar(botones->Imagen(i), {8, botones->Imagen(i)->height() / 2});
        ASSERT_EQ(hechos.size(), 1);
        EXPECT_EQ(hechos.takeFirst(), QString::fromUtf16(BotonesDePrueba[i].boton));
    }
}

TEST_F(FilaDeBotones, LaImagenSigueASuBoton) {
    auto* imagen = botones->Imagen(3);
    botones->Habilitar(3, false);
    EXPECT_FALSE(botones->Boton(3)->isEnabled());
    EXPECT_FALSE(imagen->isEnabled());
    Pulsar(imagen, {8, imagen->height() / 2});
    EXPECT_EQ(hechos, QStringList());
    EXPECT_TRUE(botones->Imagen(2)->isEnabled());
    botones->Habilitar(3, true);
    EXPECT_TRUE(imagen->isEnabled());
    botones->Boton(3)->setEnabled(false);
    EXPECT_FALSE(imagen->isEnabled());
    botones->setEnabled(false);
    botones->setEnabled(true);
    EXPECT_FALSE(imagen->isEnabled()) << "still off after a wait";
    EXPECT_TRUE(botones->Imagen(0)->isEnabled());
}

struct CasoTecla {
    bool euskera;
    Qt::Key tecla;
    int boton;
};

constexpr CasoTecla CasosTecla[] = {
    {false, Qt::Key_I, 0}, {false, Qt::Key_C, 1}, {false, Qt::Key_A, 2}, {false, Qt::Key_S, 3},
    {true, Qt::Key_H, 0},  {true, Qt::Key_Z, 1},  {true, Qt::Key_R, 2},  {true, Qt::Key_N, 3},
};

TEST_F(FilaDeBotones, LasTeclasDeAcceso) {
    for (const auto& caso : CasosTecla) {
        if (caso.euskera) enEuskera();
        campo->setFocus();
        Teclear(campo, caso.tecla, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([this] { return !hechos.isEmpty(); }, 5000)) << caso.boton;
        EXPECT_EQ(hechos.takeFirst(), QString::fromUtf16(BotonesDePrueba[caso.boton].boton));
    }
}

}  // namespace
}  // namespace padral::pruebas
