// The legal form of section 3: the list and the free description of form 90.

#include "location/section3_fixture.h"

namespace padral::pruebas {
namespace {

class FormaJuridica : public PantallaApartado3 {
protected:
    void esperaForma(qint32 codigo, const char16_t* descripcion) {
        EXPECT_EQ(r.CodigoFormaJuridica, codigo);
        EXPECT_EQ(r.DescripcionFormaJuridica, q(descripcion));
        EXPECT_TRUE(r.Modificaciones);
        EXPECT_EQ(visible(u"txtOtros"), codigo == 90);
        EXPECT_EQ(visible(u"cmbDescFormaJuridica"), codigo != 90);
    }
};

TEST_F(FormaJuridica, ElegirPoneElCodigo) {
    abrirValida();
    elegir(u"cmbDescFormaJuridica", u"SOCIEDAD LIMITADA - B");
    esperaForma(6, u"SOCIEDAD LIMITADA - B");
    EXPECT_EQ(texto(u"numFormaJuridica"), q(u"6"));
    elegir(u"cmbDescFormaJuridica", u"ESTABLECIMIENTO - W");
    esperaForma(54, u"ESTABLECIMIENTO - W");
    EXPECT_EQ(texto(u"numFormaJuridica"), q(u"54"));
    r.Modificaciones = false;
    sinCambios([&] { elegir(u"cmbDescFormaJuridica", u"ESTABLECIMIENTO - W"); });
}

TEST_F(FormaJuridica, ElCodigoSoloSeMuestra) {
    abrirValida();
    EXPECT_TRUE(bloqueado(q(u"numFormaJuridica")));
    EXPECT_EQ(c(u"numFormaJuridica")->focusPolicy() & Qt::TabFocus, 0);
    sinCambios([&] {
        c(u"numFormaJuridica")->setFocus();
        QTest::keyClicks(c(u"numFormaJuridica"), q(u"6"));
        tecla(Qt::Key_Tab);
    });
    EXPECT_EQ(texto(u"numFormaJuridica"), QString());
}

TEST_F(FormaJuridica, ElegirLa90AbreLaDescripcion) {
    abrirValida();
    elegir(u"cmbDescFormaJuridica", u"OTROS");
    esperaForma(90, u"OTROS");
    EXPECT_EQ(texto(u"txtOtros"), q(u"OTROS"));
    EXPECT_EQ(texto(u"numFormaJuridica"), q(u"90"));
    EXPECT_EQ(foco(), q(u"txtOtros"));
}

TEST_F(FormaJuridica, LaDescripcionSustituyeALaUltimaFilaHastaLaProximaCarga) {
    abrirValida();
    elegir(u"cmbDescFormaJuridica", u"OTROS");
    rellenar(u"txtOtros", u"cofradia");
    esperaForma(90, u"COFRADIA");
    EXPECT_EQ(foco(), q(u"txtAnagrama"));
    const QStringList fijas = {q(u"OTROS"), q(u"SOCIEDAD ANONIMA - A"),
                               q(u"SOCIEDAD LIMITADA - B")};
    EXPECT_EQ(filas(u"cmbDescFormaJuridica"), (fijas + QStringList{q(u"COFRADIA")}));
    EXPECT_EQ(elegido(u"cmbDescFormaJuridica"), q(u"COFRADIA"));
    abrir();
    EXPECT_EQ(filas(u"cmbDescFormaJuridica"),
              (fijas + QStringList{q(u"ESTABLECIMIENTO - W"), q(u"COFRADIA")}));
    r.Modificaciones = false;
    sinCambios([&] { rellenar(u"txtOtros", u"COFRADIA"); });
    rellenar(u"txtOtros", u"PENA");
    EXPECT_EQ(filas(u"cmbDescFormaJuridica"),
              (fijas + QStringList{q(u"ESTABLECIMIENTO - W"), q(u"PENA")}));
}

TEST_F(FormaJuridica, VaciarLaDescripcionVuelveALaLista) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        otraForma(u"COFRADIA");
        abrir();
        rellenar(u"txtOtros", u"");
        esperaForma(0, u"");
        EXPECT_EQ(filas(u"cmbDescFormaJuridica").back(), q(u"OTROS"));
        EXPECT_EQ(c<QComboBox>(u"cmbDescFormaJuridica")->currentIndex(), -1);
        EXPECT_EQ(texto(u"numFormaJuridica"), QString());
        EXPECT_EQ(foco(), q(u"txtAnagrama"));
    }
}

TEST_F(FormaJuridica, TrasVaciarlaSePuedeElegirOtra) {
    otraForma(u"COFRADIA");
    abrirValida();
    rellenar(u"txtOtros", u"");
    elegir(u"cmbDescFormaJuridica", u"SOCIEDAD ANONIMA - A");
    esperaForma(1, u"SOCIEDAD ANONIMA - A");
}

TEST_F(FormaJuridica, LasTeclasDeLaDescripcion) {
    otraForma(u"COFRADIA");
    abrirValida();
    escribir(u"txtOtros", q(u"ab#\"'[]c"));
    EXPECT_EQ(texto(u"txtOtros"), q(u"ABC"));
    tecla(Qt::Key_Return);
    EXPECT_EQ(foco(), q(u"txtAnagrama"));
    esperaForma(90, u"ABC");
}

TEST_F(FormaJuridica, LasFlechasSinEleccionAbrenLaLista) {
    for (const auto flecha : {Qt::Key_Down, Qt::Key_Up}) {
        abrirValida();
        enfocar(u"cmbDescFormaJuridica");
        sinCambios([&] { tecla(flecha); });
        EXPECT_TRUE(c<QComboBox>(u"cmbDescFormaJuridica")->view()->isVisible());
        EXPECT_TRUE(visible(u"cmbDescFormaJuridica"));
        c<QComboBox>(u"cmbDescFormaJuridica")->hidePopup();
    }
}

TEST_F(FormaJuridica, IntroSinCambioSigue) {
    r.CodigoFormaJuridica = 1;
    r.DescripcionFormaJuridica = q(u"SOCIEDAD ANONIMA - A");
    abrirValida();
    enfocar(u"cmbDescFormaJuridica");
    sinCambios([&] { tecla(Qt::Key_Return); });
    EXPECT_EQ(foco(), q(u"txtAnagrama"));
}

TEST_F(FormaJuridica, IntroConCambioVaAlAnagramaOALaDescripcion) {
    const struct {
        Qt::Key flecha;
        qint32 codigo;
        const char16_t *descripcion, *foco;
    } casos[] = {{Qt::Key_End, 54, u"ESTABLECIMIENTO - W", u"txtAnagrama"},
                 {Qt::Key_Home, 90, u"OTROS", u"txtOtros"}};
    for (const auto& caso : casos) {
        r.CodigoFormaJuridica = 1;
        r.DescripcionFormaJuridica = q(u"SOCIEDAD ANONIMA - A");
        abrirValida();
        // The code of the activity leaves the list asleep: Enter finds the difference.
        rellenar(u"txtDescripcionActividad", u"1.3333");
        enfocar(u"cmbDescFormaJuridica");
        tecla(caso.flecha);
        ASSERT_EQ(r.CodigoFormaJuridica, 1);
        tecla(Qt::Key_Return);
        esperaForma(caso.codigo, caso.descripcion);
        EXPECT_EQ(foco(), q(caso.foco));
    }
}

}  // namespace
}  // namespace padral::pruebas
