// Two boxes for one answer.

#include "ui/option_pair.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>
#include <vector>

#include "ui/field_guard.h"

namespace padral::pruebas {
namespace {

class DosCasillas : public ::testing::Test {
protected:
    void SetUp() override {
        for (QWidget* w : std::initializer_list<QWidget*>{&campo, pareja->Si(), pareja->No()})
            caja->addWidget(w);
        pareja->AlPulsar(guardia, [this](MarcaPareja marca) { respuestas.push_back(marca); });
        guardia.Registrar(&campo, [this] { return vale; });
        ventana.show();
        ventana.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    }
    void TearDown() override { campo.setParent(nullptr); }
    void espera(bool si, bool no) {
        EXPECT_EQ(pareja->Si()->isChecked(), si);
        EXPECT_EQ(pareja->No()->isChecked(), no);
    }

    GuardiaCampos guardia;
    QWidget ventana;
    QVBoxLayout* caja = new QVBoxLayout(&ventana);
    QLineEdit campo;
    ParejaCasillas* pareja =
        new ParejaCasillas(QStringLiteral("chkSi"), QStringLiteral("chkNo"), &ventana);
    std::vector<MarcaPareja> respuestas;
    bool vale = true;
};

TEST_F(DosCasillas, ConSusNombres) {
    EXPECT_EQ(pareja->Si(), ventana.findChild<QCheckBox*>(QStringLiteral("chkSi")));
    EXPECT_EQ(pareja->No(), ventana.findChild<QCheckBox*>(QStringLiteral("chkNo")));
}

TEST_F(DosCasillas, UnaQuitaLaOtraYAmbasPuedenFaltar) {
    pareja->Si()->click();
    espera(true, false);
    pareja->No()->click();
    espera(false, true);
    pareja->No()->click();
    espera(false, false);
    EXPECT_EQ(respuestas, (std::vector{MarcaPareja::Si, MarcaPareja::No, MarcaPareja::Ninguna}));
}

TEST_F(DosCasillas, MostrarNoResponde) {
    for (const auto marca : {MarcaPareja::Si, MarcaPareja::No, MarcaPareja::Ninguna}) {
        pareja->Presentar(marca);
        EXPECT_EQ(pareja->Marca(), marca);
        espera(marca == MarcaPareja::Si, marca == MarcaPareja::No);
    }
    EXPECT_TRUE(respuestas.empty());
}

TEST_F(DosCasillas, UnCampoRechazadoDejaLasCasillasComoEstaban) {
    vale = false;
    pareja->Presentar(MarcaPareja::No);
    campo.setFocus();
    pareja->Si()->click();
    espera(false, true);
    pareja->No()->click();
    espera(false, true);
    EXPECT_TRUE(respuestas.empty());
    EXPECT_TRUE(campo.hasFocus());
}

}  // namespace
}  // namespace padral::pruebas
