// Message boxes on the screen.

#include "ui/message_box.h"

#include <QLabel>
#include <QMessageBox>

#include "support/recorders.h"
#include "ui/review_messages.h"
#include "ui/window_fixture.h"

namespace padral::pruebas {
namespace {

class CajaDeMensaje : public ::testing::Test {
protected:
    /// Shows a message; `mirar` gets the box while it shows and has to close it.
    Respuesta mostrar(const Mensaje& mensaje, const std::function<void(QMessageBox&)>& mirar) {
        QTimer::singleShot(0, &reloj, [&mirar] {
            auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(caja, nullptr);
            mirar(*caja);
            if (caja->isVisible()) caja->close();
        });
        return avisador.Mostrar(mensaje);
    }

    static QStringList titulos(const QMessageBox& caja) {
        QStringList lista;
        for (const auto* boton : caja.buttons()) lista << boton->text().remove(u'&');
        lista.sort();
        return lista;
    }

    AvisadorPantalla avisador;
    QObject reloj;
};

struct CasoBotones {
    Botones botones;
    const char16_t *si, *no;  ///< captions of the first and of the last button
    const char16_t *siEuskera, *noEuskera;
    Respuesta respuestaSi, respuestaNo;
};

void PrintTo(const CasoBotones& caso, std::ostream* salida) {
    *salida << QString::fromUtf16(caso.si).toStdString() << ' '
            << QString::fromUtf16(caso.no).toStdString();
}

const CasoBotones Casos[] = {
    {Botones::Aceptar, u"Aceptar", u"", u"Ados", u"", Respuesta::Aceptar, Respuesta::Aceptar},
    {Botones::AceptarCancelar, u"Aceptar", u"Cancelar", u"Ados", u"Utzi", Respuesta::Aceptar,
     Respuesta::Cancelar},
    {Botones::SiNo, u"Sí", u"No", u"Bai", u"Ez", Respuesta::Si, Respuesta::No},
};

class BotonesDeCaja : public CajaDeMensaje, public ::testing::WithParamInterface<CasoBotones> {
protected:
    Mensaje mensaje() const {
        return {QStringLiteral("texto"), QStringLiteral("título"), Icono::Exclamacion,
                GetParam().botones};
    }
};

INSTANTIATE_TEST_SUITE_P(Todos, BotonesDeCaja, ::testing::ValuesIn(Casos));

TEST_P(BotonesDeCaja, HablanElIdiomaDelMomento) {
    for (const bool euskera : {false, true}) {
        avisador.esEuskera = [euskera] { return euskera; };
        const auto& caso = GetParam();
        QStringList esperados;
        for (const char16_t* t :
             {euskera ? caso.siEuskera : caso.si, euskera ? caso.noEuskera : caso.no})
            if (*t != 0) esperados << QString::fromUtf16(t);
        esperados.sort();
        mostrar(mensaje(), [&](QMessageBox& caja) { EXPECT_EQ(titulos(caja), esperados); });
    }
}

TEST_P(BotonesDeCaja, CadaBotonDaSuRespuesta) {
    const auto& caso = GetParam();
    for (const bool si : {true, false}) {
        const QString titulo = QString::fromUtf16(si || *caso.no == 0 ? caso.si : caso.no);
        const auto respuesta = mostrar(mensaje(), [&](QMessageBox& caja) {
            for (auto* boton : caja.buttons())
                if (boton->text().remove(u'&') == titulo) Pulsar(boton);
        });
        EXPECT_EQ(respuesta, si ? caso.respuestaSi : caso.respuestaNo);
    }
}

TEST_P(BotonesDeCaja, EscapeYLaAspaDicenQueNoEIntroQueSi) {
    const auto& caso = GetParam();
    const auto conTecla = [&](Qt::Key tecla) {
        return mostrar(mensaje(), [tecla](QMessageBox& caja) { Teclear(&caja, tecla); });
    };
    EXPECT_EQ(conTecla(Qt::Key_Escape), caso.respuestaNo);
    EXPECT_EQ(conTecla(Qt::Key_Return), caso.respuestaSi);
    EXPECT_EQ(mostrar(mensaje(), [](QMessageBox& caja) { caja.close(); }), caso.respuestaNo);
}

// The key that is still down from the command before must not answer the question.
TEST_P(BotonesDeCaja, UnaTeclaMantenidaNoResponde) {
    const auto& caso = GetParam();
    for (const auto tecla : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        EXPECT_EQ(mostrar(mensaje(),
                          [tecla](QMessageBox& caja) {
                              Repetir(&caja, tecla);
                              for (auto* boton : caja.buttons()) Repetir(boton, tecla);
                              EXPECT_TRUE(caja.isVisible()) << tecla;
                          }),
                  caso.respuestaNo);
}

TEST_F(CajaDeMensaje, ElTextoEsLlano) {
    const QString texto = QStringLiteral("<b>Pérez & Hijos</b> <img src=x> &amp; 1 < 2");
    mostrar({texto, QStringLiteral("A & B"), Icono::Informacion, Botones::Aceptar},
            [&](QMessageBox& caja) {
                EXPECT_EQ(caja.text(), texto);
                EXPECT_EQ(caja.textFormat(), Qt::PlainText);
                EXPECT_EQ(caja.windowTitle(), QStringLiteral("A & B"));
                auto* etiqueta = caja.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
                ASSERT_NE(etiqueta, nullptr);
                EXPECT_EQ(etiqueta->text(), texto);
                EXPECT_EQ(etiqueta->textFormat(), Qt::PlainText);
                // Without a buddy an ampersand is shown as it is.
                EXPECT_EQ(etiqueta->buddy(), nullptr);
            });
}

TEST_F(CajaDeMensaje, CadaIcono) {
    const std::pair<Icono, QMessageBox::Icon> casos[] = {
        {Icono::Ninguno, QMessageBox::NoIcon},
        {Icono::Informacion, QMessageBox::Information},
        {Icono::Exclamacion, QMessageBox::Warning},
        {Icono::Error, QMessageBox::Critical}};
    for (const auto& [icono, deQt] : casos)
        mostrar({QStringLiteral("t"), QString(), icono, Botones::Aceptar},
                [esperado = deQt](QMessageBox& caja) {
                    EXPECT_EQ(caja.icon(), esperado);
                    EXPECT_EQ(caja.windowTitle(), QString());
                });
}

TEST_F(CajaDeMensaje, LaEsperaTerminaAntesDeMostrarse) {
    bool terminada = false;
    avisador.finEspera = [&] {
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        terminada = true;
    };
    mostrar({QStringLiteral("t"), QString(), Icono::Informacion, Botones::Aceptar},
            [&](QMessageBox&) { EXPECT_TRUE(terminada); });
}

TEST_F(VentanaConCampos, TrasLaCajaElFocoEstaDondeEstaba) {
    AvisadorPantalla avisador;
    QTimer::singleShot(0, &ventana,
                       [] { Teclear(QApplication::activeModalWidget(), Qt::Key_Escape); });
    avisador.Mostrar({QStringLiteral("t"), QString(), Icono::Informacion, Botones::Aceptar});
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    EXPECT_TRUE(campo->hasFocus());
    EXPECT_EQ(llamadas, 0);
}

TEST(MensajesDeRevision, TextoTituloEIconoDeCadaAviso) {
    GrabadorAvisos avisos;
    RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    const QWidget pantalla;
    const Revision revision{
        .avisos = {{754, 0}, {871, 75, u"Ap4- "}, {.texto = 0, .titulo = 753, .exclamacion = true}},
        .compuesto = QStringLiteral("compuesto")};
    for (const int desplazamiento : {0, 10000}) {
        estado.DesplazamientoIdioma = static_cast<qint16>(desplazamiento);
        avisos.Espera(estado.Texto(754), QString());
        avisos.Espera(estado.Texto(871), QStringLiteral("Ap4- ") + estado.Texto(75));
        avisos.Espera(
            {revision.compuesto, estado.Texto(753), Icono::Exclamacion, Botones::Aceptar});
        EXPECT_FALSE(Avisar(estado, pantalla, revision));
        avisos.Verificar();
    }
    EXPECT_TRUE(Avisar(estado, pantalla, {}));
}

}  // namespace
}  // namespace padral::pruebas
