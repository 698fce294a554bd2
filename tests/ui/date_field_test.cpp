// Masked date fields: always ten characters, digits only.

#include "ui/window_fixture.h"

namespace padral::pruebas {
namespace {

struct Mascara {
    const char16_t *mascara, *formato, *vacia, *llena;
};

// Masks of both languages and of day and month.
const Mascara Mascaras[] = {
    {u"##/##/####", u"dd/mm/yyyy", u"__/__/____", u"31/12/2002"},
    {u"####/##/##", u"yyyy/mm/dd", u"____/__/__", u"3112/20/02"},
    {u"##/##", u"dd/mm", u"__/__", u"31/12"},
};

void PrintTo(const Mascara& mascara, std::ostream* salida) {
    *salida << QString::fromUtf16(mascara.mascara).toStdString();
}

class CampoDeFecha : public ::testing::TestWithParam<Mascara> {
protected:
    void SetUp() override {
        fecha.PonerMascara(QString::fromUtf16(GetParam().mascara),
                           QString::fromUtf16(GetParam().formato));
        ventana.show();
        ventana.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
        fecha.setFocus();
    }
    void TearDown() override { EXPECT_EQ(fecha.Texto().size(), vacia().size()); }

    void pegar(const QString& texto) {
        QApplication::clipboard()->setText(texto);
        QTest::keyClick(&fecha, Qt::Key_V, Qt::ControlModifier);
    }
    static QString vacia() { return QString::fromUtf16(GetParam().vacia); }
    static QString llena() { return QString::fromUtf16(GetParam().llena); }

    QWidget ventana;
    CampoFecha fecha{QStringLiteral("fecha"), &ventana};
    CampoFecha otra{QStringLiteral("otra"), &ventana};
};

INSTANTIATE_TEST_SUITE_P(Mascaras, CampoDeFecha, ::testing::ValuesIn(Mascaras));

TEST_P(CampoDeFecha, SinTocarEsLaMascaraVacia) {
    EXPECT_EQ(fecha.Texto(), vacia());
    EXPECT_EQ(fecha.accessibleDescription(), QString::fromUtf16(GetParam().formato));
}

TEST_P(CampoDeFecha, LasCifrasLlenanLaMascaraEnOrden) {
    Escribir(&fecha, QStringLiteral("31122002"));
    EXPECT_EQ(fecha.Texto(), llena());
    Escribir(&fecha, QStringLiteral("9"));
    EXPECT_EQ(fecha.Texto(), llena());
}

TEST_P(CampoDeFecha, AMedioLlenarLosHuecosSonSubrayados) {
    Escribir(&fecha, QStringLiteral("3"));
    EXPECT_EQ(fecha.Texto(), u'3' + vacia().mid(1));
    QTest::keyClick(&fecha, Qt::Key_Backspace);
    EXPECT_EQ(fecha.Texto(), vacia());
}

TEST_P(CampoDeFecha, SoloEntranCifras) {
    Escribir(&fecha, QStringLiteral("a3/1 -.x1_2ñ2/00'2"));
    EXPECT_EQ(fecha.Texto(), llena());
}

TEST_P(CampoDeFecha, LoQueNoEsCifraNoBorraLoSeleccionado) {
    fecha.Presentar(llena());
    fecha.selectAll();
    Escribir(&fecha, QStringLiteral("a/_ "));
    pegar(QStringLiteral("basura / _ sin cifras"));
    QInputMethodEvent compuesto;
    compuesto.setCommitString(QStringLiteral("ñ"));
    QApplication::sendEvent(&fecha, &compuesto);
    EXPECT_EQ(fecha.Texto(), llena());
}

TEST_P(CampoDeFecha, PegarYSoltarSonComoTeclear) {
    for (const char16_t* texto :
         {u"31/12/2002", u"31122002", u" 31-12-2002 ", u"x3x1x1x2x2x0x0x2x", u"311220029999"}) {
        fecha.Presentar(vacia());
        fecha.selectAll();
        pegar(QString::fromUtf16(texto));
        EXPECT_EQ(fecha.Texto(), llena()) << QString::fromUtf16(texto).toStdString();
        fecha.Presentar(vacia());
        Soltar(&fecha, QString::fromUtf16(texto), QPoint(2, 5));
        EXPECT_EQ(fecha.Texto(), llena()) << QString::fromUtf16(texto).toStdString();
    }
    pegar(QString(10000, u'7'));
    EXPECT_EQ(fecha.Texto().size(), vacia().size());
}

TEST_P(CampoDeFecha, PresentarYVaciar) {
    fecha.Presentar(llena());
    EXPECT_EQ(fecha.Texto(), llena());
    fecha.Presentar(vacia());
    EXPECT_EQ(fecha.Texto(), vacia());
    fecha.Presentar(llena());
    fecha.Presentar(QString());
    EXPECT_EQ(fecha.Texto(), vacia());
}

TEST_P(CampoDeFecha, BorrarTodoDejaLaMascara) {
    fecha.Presentar(llena());
    fecha.selectAll();
    QTest::keyClick(&fecha, Qt::Key_Delete);
    EXPECT_EQ(fecha.Texto(), vacia());
    QTest::keyClick(&fecha, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(fecha.Texto().size(), vacia().size());
}

TEST_P(CampoDeFecha, AlEntrarSeSeleccionaTodoEIntroSigue) {
    fecha.Presentar(llena());
    otra.setFocus();
    fecha.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(fecha.selectedText(), llena());
    QTest::keyClick(&fecha, Qt::Key_Return);
    EXPECT_TRUE(otra.hasFocus());
}

TEST(CampoDeFechaIdioma, CambiarLaMascaraYPresentarDeNuevo) {
    CampoFecha fecha(QStringLiteral("fecha"));
    fecha.PonerMascara(QStringLiteral("##/##/####"), QStringLiteral("dd/mm/yyyy"));
    fecha.Presentar(QStringLiteral("31/12/2002"));
    fecha.PonerMascara(QStringLiteral("####/##/##"), QStringLiteral("yyyy/mm/dd"));
    fecha.Presentar(QStringLiteral("2002/12/31"));
    EXPECT_EQ(fecha.Texto(), QStringLiteral("2002/12/31"));
}

}  // namespace
}  // namespace padral::pruebas
