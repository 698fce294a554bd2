// Locked fields, labels, the commands of a screen.

#include <QLabel>

#include "support/recorders.h"
#include "ui/screen.h"
#include "ui/window_fixture.h"

namespace padral::pruebas {
namespace {

/// The desktop's colours for the time of a test.
class ConColores : public ::testing::TestWithParam<std::pair<Qt::GlobalColor, Qt::GlobalColor>> {
protected:
    void SetUp() override {
        QPalette paleta = antes;
        paleta.setColor(QPalette::Base, GetParam().first);
        paleta.setColor(QPalette::Text, GetParam().second);
        QApplication::setPalette(paleta);
    }
    void TearDown() override { QApplication::setPalette(antes); }
    const QPalette antes = QApplication::palette();
};

// Light and dark: field, text.
INSTANTIATE_TEST_SUITE_P(Temas, ConColores,
                         ::testing::Values(std::pair{Qt::white, Qt::black},
                                           std::pair{Qt::black, Qt::white}));

TEST_P(ConColores, BloquearYDesbloquear) {
    CampoTexto campo(QStringLiteral("campo"), 9);
    BloquearCampo(&campo);
    EXPECT_TRUE(EstaBloqueado(&campo));
    EXPECT_TRUE(campo.isReadOnly());
    EXPECT_FALSE(campo.focusPolicy() & Qt::TabFocus);
    for (const auto grupo : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        EXPECT_EQ(campo.palette().color(grupo, QPalette::Base), QColor(0xE0, 0xE0, 0xE0));
        EXPECT_EQ(campo.palette().color(grupo, QPalette::Text), QColor(Qt::black));
    }
    DesbloquearCampo(&campo);
    EXPECT_FALSE(EstaBloqueado(&campo));
    EXPECT_FALSE(campo.isReadOnly());
    EXPECT_EQ(campo.focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(campo.palette().color(QPalette::Base), QColor(GetParam().first));
    EXPECT_EQ(campo.palette().color(QPalette::Text), QColor(GetParam().second));
}

TEST_F(VentanaConCampos, TabPasaDeLargoPorUnCampoBloqueado) {
    BloquearCampo(campo);
    otroAntes->setFocus();
    Teclear(otroAntes, Qt::Key_Tab);
    EXPECT_TRUE(otro->hasFocus());
    DesbloquearCampo(campo);
    Teclear(otro, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(campo->hasFocus());
}

TEST(CampoSeleccionado, SeleccionarTexto) {
    CampoTexto campo(QStringLiteral("campo"), 9);
    campo.Presentar(QStringLiteral("ABC"));
    SeleccionarTexto(&campo);
    EXPECT_EQ(campo.selectionStart(), 0);
    EXPECT_EQ(campo.selectionLength(), 3);
}

TEST(EtiquetaMostrada, ConTextoSeMuestraYSinElSeEscondeComoEstaba) {
    QWidget ventana;
    QLabel* etiqueta = Etiqueta(QStringLiteral("lbl"), &ventana);
    MostrarEtiqueta(etiqueta, QStringLiteral("uno"));
    EXPECT_EQ(etiqueta->text(), QStringLiteral("uno"));
    EXPECT_TRUE(etiqueta->isVisibleTo(&ventana));
    MostrarEtiqueta(etiqueta, QString());
    EXPECT_EQ(etiqueta->text(), QStringLiteral("uno"));
    EXPECT_FALSE(etiqueta->isVisibleTo(&ventana));
    MostrarEtiqueta(etiqueta, QStringLiteral("dos"));
    EXPECT_EQ(etiqueta->text(), QStringLiteral("dos"));
    EXPECT_TRUE(etiqueta->isVisibleTo(&ventana));
}

// Names and descriptions come from files that anyone may edit: no markup is read.
TEST(EtiquetaMostrada, ElTextoEsLlano) {
    QWidget ventana;
    QCheckBox casilla(&ventana);
    EtiquetaCasilla deCasilla(QStringLiteral("lbl"), &casilla, &ventana);
    const QString texto = QStringLiteral("<b>Pérez</b>");
    for (QLabel* etiqueta :
         {Etiqueta(QStringLiteral("lbl"), &ventana), Encabezado(QStringLiteral("lbl"), &ventana),
          static_cast<QLabel*>(&deCasilla)}) {
        etiqueta->setText(texto);
        EXPECT_EQ(etiqueta->textFormat(), Qt::PlainText);
        EXPECT_GE(etiqueta->sizeHint().width(), etiqueta->fontMetrics().horizontalAdvance(texto));
    }
}

/// A screen with one command, its picture and one field.
class PantallaMinima : public Pantalla {
public:
    explicit PantallaMinima(const Contexto& contexto)
        : Pantalla(QStringLiteral("FrmMinima"), contexto) {
        auto* caja = new QVBoxLayout(this);
        for (QWidget* w : std::initializer_list<QWidget*>{campo, boton, imagen}) caja->addWidget(w);
        guardia_.Registrar(campo, [this] { return vale; });
        Orden(boton, [this] { alMandar(); });
        Orden(imagen, boton);
    }
    void Anadir_captions() override { boton->setText(Texto(449)); }
    void Cargar() override { Anadir_captions(); }

    CampoTexto* campo = new CampoTexto(QStringLiteral("campo"), 9, this);
    QPushButton* boton = new QPushButton(this);
    ImagenPulsable* imagen =
        new ImagenPulsable(QStringLiteral("pic"), QStringLiteral("accept"), this);
    std::function<void()> alMandar;
    bool vale = true;
};

TEST(OrdenDePantalla, CorreConElCursorDeEsperaSoloSiElCampoVale) {
    GrabadorAvisos avisos;
    RelojFijo reloj;
    EstadoCompartido estado(avisos, reloj);
    GrabadorPantallas pantallas;
    GuardiaCampos guardia;
    PantallaMinima pantalla({estado, pantallas, guardia});
    int ordenes = 0;
    pantalla.alMandar = [&] {
        ++ordenes;
        EXPECT_TRUE(pantallas.EnEspera());
    };
    pantalla.Cargar();
    EXPECT_EQ(pantalla.boton->text(), QStringLiteral("Error"));
    EXPECT_EQ(pantalla.objectName(), QStringLiteral("FrmMinima"));
    pantalla.show();
    pantalla.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&pantalla));
    for (const bool vale : {false, true}) {
        pantalla.vale = vale;
        pantalla.campo->setFocus();
        Pulsar(pantalla.boton);
        pantalla.campo->setFocus();
        Pulsar(pantalla.imagen, {8, pantalla.imagen->height() / 2});
        EXPECT_EQ(ordenes, vale ? 2 : 0);
        EXPECT_EQ(pantallas.EsperasTotales, ordenes);
        EXPECT_FALSE(pantallas.EnEspera());
    }
}

}  // namespace
}  // namespace padral::pruebas
