// Numeric fields: whatever enters is digits, and no more of them than fit.

#include "ui/number_field.h"

#include "ui/window_fixture.h"

namespace padral::pruebas {
namespace {

enum class Entrada { Teclas, Pegar, Soltar, Componer };
constexpr Entrada Entradas[] = {Entrada::Teclas, Entrada::Pegar, Entrada::Soltar,
                                Entrada::Componer};

class CampoNumerico : public ::testing::Test {
protected:
    void SetUp() override {
        caja->addWidget(antes);
        caja->addStretch(1);
        ventana.resize(400, 300);
        ventana.show();
        ventana.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    }
    /// A field with the focus.
    CajaNum* nuevo(int enteros, const char16_t* formato) {
        auto* campo =
            new CajaNum(QStringLiteral("numero"), enteros, QString::fromUtf16(formato), &ventana);
        caja->insertWidget(0, campo);
        campo->show();
        QCoreApplication::processEvents();
        campo->setFocus();
        return campo;
    }
    static void entrar(CajaNum* campo, Entrada entrada, const QString& texto) {
        switch (entrada) {
            case Entrada::Teclas:
                return Escribir(campo, texto);
            case Entrada::Pegar:
                QApplication::clipboard()->setText(texto);
                return QTest::keyClick(campo, Qt::Key_V, Qt::ControlModifier);
            case Entrada::Soltar:
                Soltar(campo, texto, QPoint(campo->width() - 3, 5));
                return;
            case Entrada::Componer:
                QInputMethodEvent evento;
                evento.setCommitString(texto);
                QApplication::sendEvent(campo, &evento);
        }
    }

    QWidget ventana;
    QVBoxLayout* caja = new QVBoxLayout(&ventana);
    QLineEdit* antes = new QLineEdit(&ventana);
};

struct CasoEntrada {
    int enteros;
    const char16_t *formato, *entra, *queda;
    qint32 valor;
};

constexpr CasoEntrada CasosEntrada[] = {
    {5, u"#####", u"123", u"123", 123},
    {5, u"#####", u"00012", u"00012", 12},
    {5, u"#####", u"1234567", u"12345", 12345},
    {5, u"#####", u"a1b2-c3.4,5 6'7\"", u"12345", 12345},
    {5, u"#####", u"letras", u"", 0},
    {5, u"#####", u"", u"", 0},
    {5, u"#####", u"\u0661\u0662\uFF13\u00B2", u"", 0},
    {2, u"00", u"128", u"12", 12},
    {3, u"###", u"1,5", u"15", 15},
    {9, u"#########", u"943 11 22 33", u"943112233", 943112233},
    {9, u"#########", u"9999999999", u"999999999", 999999999},
    {3, u"##0.00", u"12,34", u"12,34", 12},
    {3, u"##0.00", u"12.34", u"12,34", 12},
    {3, u"##0.00", u"100,00", u"100,00", 100},
    {3, u"##0.00", u" 7x,y5 ", u"7,5", 7},
    {3, u"##0.00", u".5", u",5", 0},
    {3, u"##0.00", u"12,", u"12,", 12},
    {3, u"##0.00", u"abc", u"", 0},
};

TEST_F(CampoNumerico, CualquierEntradaPasaElFiltro) {
    for (const auto& caso : CasosEntrada)
        for (const auto entrada : Entradas) {
            auto* campo = nuevo(caso.enteros, caso.formato);
            entrar(campo, entrada, QString::fromUtf16(caso.entra));
            EXPECT_EQ(campo->text(), QString::fromUtf16(caso.queda)) << static_cast<int>(entrada);
            EXPECT_EQ(campo->Valor(), caso.valor);
            delete campo;
        }
}

/// What comes in one piece is cut at the first character that finds no room.
constexpr CasoEntrada CasosCortados[] = {
    {3, u"##0.00", u"12,345", u"12,34", 12},
    {3, u"##0.00", u"1234,5", u"123", 123},
    {3, u"##0.00", u"1,2,3", u"1,2", 1},
    {3, u"##0.00", u"1.234,56", u"1,23", 1},
};

TEST_F(CampoNumerico, ConDecimalesSeCortaDondeYaNoCabe) {
    for (const auto& caso : CasosCortados)
        for (const auto entrada : {Entrada::Pegar, Entrada::Soltar, Entrada::Componer}) {
            auto* campo = nuevo(caso.enteros, caso.formato);
            entrar(campo, entrada, QString::fromUtf16(caso.entra));
            EXPECT_EQ(campo->text(), QString::fromUtf16(caso.queda)) << static_cast<int>(entrada);
            EXPECT_EQ(campo->Valor(), caso.valor);
            delete campo;
        }
}

TEST_F(CampoNumerico, DiezMilCaracteresSeCortan) {
    const std::pair<const char16_t*, QString> casos[] = {{u"#####", QString(5, u'7')},
                                                         {u"####0.00", QString(5, u'7')}};
    for (const auto& [formato, queda] : casos)
        for (const auto entrada : {Entrada::Pegar, Entrada::Soltar, Entrada::Componer}) {
            auto* campo = nuevo(5, formato);
            entrar(campo, entrada, QString(10000, u'x'));
            EXPECT_EQ(campo->text(), QString());
            entrar(campo, entrada, QString(5000, u'x') + QString(10000, u'7'));
            EXPECT_EQ(campo->text(), queda) << static_cast<int>(entrada);
            delete campo;
        }
}

TEST_F(CampoNumerico, LoQueNoSeAdmiteNoBorraLoSeleccionado) {
    for (const auto* formato : {u"#####", u"##0.00"})
        for (const auto entrada : {Entrada::Teclas, Entrada::Pegar}) {
            auto* campo = nuevo(3, formato);
            campo->Presentar(123);
            const QString presentado = campo->text();
            campo->selectAll();
            entrar(campo, entrada, QStringLiteral("x-ñ"));
            EXPECT_EQ(campo->text(), presentado);
            EXPECT_EQ(campo->selectedText(), presentado);
            entrar(campo, entrada, QStringLiteral("45"));
            EXPECT_EQ(campo->text(), QStringLiteral("45"));
            delete campo;
        }
}

struct CasoSitio {
    const char16_t* hay;
    int desde, largo;
    const char16_t *entra, *queda;
};

/// Typed over a selection or at the cursor of a field of three digits and two decimals.
constexpr CasoSitio CasosSitio[] = {
    {u"12,34", 0, 0, u"9", u"912,34"}, {u"12,34", 5, 0, u"9", u"12,34"},
    {u"12,34", 3, 0, u"9", u"12,34"},  {u"12,34", 3, 1, u"9", u"12,94"},
    {u"123,4", 0, 0, u"9", u"123,4"},  {u"123,4", 1, 1, u"9", u"193,4"},
    {u"12,34", 1, 0, u",", u"12,34"},  {u"12,34", 0, 5, u".5", u",5"},
    {u"123", 1, 0, u",", u"1,23"},     {u"123", 0, 0, u",", u"123"},
    {u"12,34", 1, 2, u".", u"1,34"},
};

TEST_F(CampoNumerico, ConDecimalesCuentaElSitio) {
    for (const auto& caso : CasosSitio) {
        auto* campo = nuevo(3, u"##0.00");
        campo->setText(QString::fromUtf16(caso.hay));
        campo->setCursorPosition(caso.desde);
        if (caso.largo > 0) campo->setSelection(caso.desde, caso.largo);
        Escribir(campo, QString::fromUtf16(caso.entra));
        EXPECT_EQ(campo->text(), QString::fromUtf16(caso.queda))
            << QString::fromUtf16(caso.hay).toStdString() << ' ' << caso.desde;
        delete campo;
    }
}

// The selection stays beside what is dropped: it makes no room.
TEST_F(CampoNumerico, LoSoltadoEntraDondeSeSueltaSinSustituir) {
    auto* campo = nuevo(3, u"##0.00");
    campo->setText(QStringLiteral("12,3"));
    campo->selectAll();
    campo->repaint();  // the mouse finds its place among letters that show
    Soltar(campo, QStringLiteral("45"), QPoint(campo->width() - 3, 5));
    EXPECT_EQ(campo->text(), QStringLiteral("12,34"));
    campo->setText(QStringLiteral("1,2"));
    antes->setFocus();
    campo->repaint();
    Soltar(campo, QStringLiteral("4567"), QPoint(0, 5));
    EXPECT_EQ(campo->text(), QStringLiteral("451,2"));
    EXPECT_TRUE(campo->hasFocus());
    entrar(campo, Entrada::Pegar, QStringLiteral("5"));
    EXPECT_EQ(campo->text(), QStringLiteral("451,2")) << "no room before the comma";
}

struct CasoFormato {
    int enteros;
    const char16_t *formato, *otro, *valor, *texto;
};

constexpr CasoFormato CasosFormato[] = {
    {5, u"#####", u"", u"0", u""},
    {5, u"#####", u"", u"", u""},
    {5, u"#####", u"", u"doce", u""},
    {5, u"#####", u"", u"12,9", u"12"},
    {5, u"#####", u"", u"12.9", u"12"},
    {5, u"#####", u"00000", u"1005", u"01005"},
    {2, u"00", u"", u"1", u"01"},
    {2, u"00", u"", u"0", u"00"},
    {2, u"00", u"##", u"0", u""},
    {9, u"#########", u"", u"943112233", u"943112233"},
    {3, u"##0.00", u"", u"33,333", u"33,33"},
    {3, u"##0.00", u"", u"0", u"0,00"},
    {5, u"#####", u"", u"1234567", u"1234567"},
    {2, u"00", u"", u"-5", u"-05"},
};

TEST_F(CampoNumerico, AsignarValorFormateado) {
    for (const auto& caso : CasosFormato) {
        auto* campo = nuevo(caso.enteros, caso.formato);
        campo->setText(QStringLiteral("9"));
        campo->AsignarValorFormateado(QString::fromUtf16(caso.valor),
                                      QString::fromUtf16(caso.otro));
        EXPECT_EQ(campo->text(), QString::fromUtf16(caso.texto));
        EXPECT_EQ(campo->OldValue(), QString::fromUtf16(caso.texto));
        EXPECT_EQ(campo->Formato(), QString::fromUtf16(caso.formato));
        delete campo;
    }
}

TEST_F(CampoNumerico, PresentarSinCero) {
    auto* campo = nuevo(2, u"00");
    campo->PresentarSinCero(7);
    EXPECT_EQ(campo->text(), QStringLiteral("07"));
    EXPECT_EQ(campo->OldValue(), QStringLiteral("07"));
    campo->PresentarSinCero(0);
    EXPECT_EQ(campo->text(), QString());
    EXPECT_EQ(campo->OldValue(), QString());
    campo->Presentar(0);
    EXPECT_EQ(campo->text(), QStringLiteral("00"));
}

TEST_F(CampoNumerico, LoEscritoNoCambiaElValorAntiguoNiLoPresentadoAvisa) {
    auto* campo = nuevo(5, u"#####");
    int avisos = 0;
    QObject::connect(campo, &QLineEdit::textEdited, [&avisos] { ++avisos; });
    campo->Presentar(12);
    EXPECT_EQ(avisos, 0);
    campo->selectAll();
    Escribir(campo, QStringLiteral("7x"));
    EXPECT_EQ(avisos, 1);
    EXPECT_EQ(campo->OldValue(), QStringLiteral("12"));
    EXPECT_EQ(campo->Valor(), 7);
}

TEST_F(CampoNumerico, UnValorMayorQueElCampoPuedeMenguarPeroNoCrecer) {
    auto* campo = nuevo(3, u"###");
    campo->Presentar(12345);
    EXPECT_EQ(campo->text(), QStringLiteral("12345"));
    EXPECT_EQ(campo->Valor(), 12345);
    QTest::keyClick(campo, Qt::Key_End);
    Escribir(campo, QStringLiteral("6"));
    EXPECT_EQ(campo->text(), QStringLiteral("12345"));
    QTest::keyClick(campo, Qt::Key_Backspace);
    Escribir(campo, QStringLiteral("67"));
    EXPECT_EQ(campo->text(), QStringLiteral("1234"));
    campo->setCursorPosition(2);
    QTest::keyClick(campo, Qt::Key_Backspace);
    EXPECT_EQ(campo->cursorPosition(), 1);
    campo->selectAll();
    Escribir(campo, QStringLiteral("98765"));
    EXPECT_EQ(campo->text(), QStringLiteral("987"));
}

TEST_F(CampoNumerico, UnValorMayorQueElCampoTambienSeSabeEscrito) {
    auto* campo = nuevo(2, u"##");
    campo->Presentar(943);
    EXPECT_FALSE(campo->isModified());
    campo->selectAll();
    Escribir(campo, QStringLiteral("1"));
    EXPECT_EQ(campo->text(), QStringLiteral("1"));
    EXPECT_TRUE(campo->isModified());
}

TEST_F(CampoNumerico, BloqueadoNoAdmiteNadaYDesbloqueadoSi) {
    for (const auto* formato : {u"###", u"##0.00"}) {
        auto* campo = nuevo(3, formato);
        campo->AsignarValorFormateado(QStringLiteral("1"));
        const QString presentado = campo->text();
        BloquearCampo(campo);
        EXPECT_TRUE(EstaBloqueado(campo));
        campo->selectAll();
        for (const auto entrada : Entradas) entrar(campo, entrada, QStringLiteral("2"));
        EXPECT_EQ(campo->text(), presentado);
        campo->Presentar(5);
        EXPECT_EQ(campo->Valor(), 5);
        DesbloquearCampo(campo);
        campo->selectAll();
        Escribir(campo, QStringLiteral("2"));
        EXPECT_EQ(campo->text(), QStringLiteral("2"));
        delete campo;
    }
}

TEST_F(CampoNumerico, AlEntrarSeSeleccionaYIntroSigue) {
    auto* campo = nuevo(5, u"#####");
    campo->Presentar(12345);
    QWidget::setTabOrder(campo, antes);
    antes->setFocus();
    Teclear(antes, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(campo->selectedText(), QStringLiteral("12345"));
    Escribir(campo, QStringLiteral("8"));
    EXPECT_EQ(campo->text(), QStringLiteral("8"));
    Teclear(campo, Qt::Key_Enter);
    EXPECT_TRUE(antes->hasFocus());
}

}  // namespace
}  // namespace padral::pruebas
