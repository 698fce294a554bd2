// Through all the screens of a declaration, on to the last one and back to the general data, with
// each effective date: nothing is lost on the way.

#include "walk/walk_controls.h"
#include "walk/walk_fixture.h"
#include "walk/walk_hand.h"

namespace padral::pruebas {
namespace {

/// Places in the list of prepared declarations, oldest first.
constexpr int Persona = 0, PersonaDeAntes = 1, Empresa = 2, Inicio = 3, Previa = 4, Cese = 5,
              Comunidad = 6;

struct IdaYVuelta {
    int preparada;
    /// Date of change to be written first, 0: as stored.
    qint32 fecha;
    /// Screens after the general data, in their order.
    const char* pantallas;
};
void PrintTo(const IdaYVuelta& v, std::ostream* salida) {
    *salida << v.preparada << ' ' << v.fecha;
}

class CaminoEntero : public ConPaseo,
                     public ::testing::WithParamInterface<std::tuple<const char*, IdaYVuelta>> {
protected:
    void paso(const QString& control, const QString& descripcion,
              const std::function<void()>& hacer) {
        const int mensajes = avisador_->Mostrados;
        hacer();
        guia_->Respirar();
        EXPECT_EQ(avisador_->Mostrados, mensajes) << avisador_->Ultimo.toStdString();
        cotejar({control, descripcion, {}}, {}, false);
    }
    void pulsar(const char16_t* control) {
        const QString nombre = QString::fromUtf16(control);
        auto* boton = pantalla()->findChild<QWidget*>(nombre);
        ASSERT_TRUE(boton && boton->isEnabled()) << nombre.toStdString();
        paso(nombre, QStringLiteral("click ") + nombre, [=] { PulsarEn(boton); });
    }
    /// The button that goes on or back: section 2 has names of its own.
    void seguir(bool adelante) {
        const bool dos = formulario() == QStringLiteral("FrmApartado2");
        if (adelante)
            pulsar(dos ? u"cmdApartadoSiguiente" : u"cmdSiguiente");
        else
            pulsar(dos ? u"cmdApartadoAnterior" : u"cmdAnterior");
    }
    void abrir(int preparada) {
        paso(QStringLiteral("Abrir"), QStringLiteral("open the list"),
             [&] { guia_->Ordenar(QStringLiteral("Abrir")); });
        auto* tabla = pantalla()->findChild<QAbstractItemView*>(QStringLiteral("flxDeclaraciones"));
        const auto* modelo = tabla->model();
        for (int i = 0; i < modelo->rowCount(); ++i) {
            if (modelo->index(i, 0).data().toInt() != preparadas_[preparada]) continue;
            return paso(QStringLiteral("cmdVerDeclaracion"), QStringLiteral("open it"),
                        [&] { PulsarFila(tabla, modelo->index(i, 1), true); });
        }
        FAIL() << "it is not in the list";
    }
    void escribir(const char16_t* control, const QString& texto) {
        const QString nombre = QString::fromUtf16(control);
        paso(nombre, QStringLiteral("type ") + texto, [&] {
            EscribirEn(pantalla()->findChild<QLineEdit*>(nombre), texto, Salida::Tabulador);
        });
    }
    void abrirPrimera() {
        for (const auto* boton : {u"cmdApartado2", u"cmdApartado3", u"cmdApartado4",
                                  u"cmdApartado5", u"cmdApartado6", u"cmdAnexo"})
            if (pantalla()->findChild<QWidget*>(QString::fromUtf16(boton))->isEnabled())
                return pulsar(boton);
        FAIL() << "no section is marked";
    }
};

TEST_P(CaminoEntero, NadaSePierde) {
    const auto& [idioma, vuelta] = GetParam();
    arrancar(1, QString::fromLatin1(idioma));
    abrir(vuelta.preparada);
    if (vuelta.fecha != 0)
        escribir(u"mskFechaModificacion", TextoDeFecha(vuelta.fecha, euskera()).remove(u'/'));
    escribir(u"txtNumeroArchivo", QStringLiteral("VUELTA"));
    const Retrato antes = Retratar(programa_->declaracion());
    abrirPrimera();
    const QStringList pantallas = QString::fromLatin1(vuelta.pantallas).split(u' ');
    QStringList vistas{formulario()};
    while (vistas.size() < pantallas.size()) {
        ASSERT_NO_FATAL_FAILURE(seguir(true));
        vistas << formulario();
    }
    EXPECT_EQ(vistas, pantallas);
    for (auto i = pantallas.rbegin(); i != pantallas.rend(); ++i) {
        EXPECT_EQ(formulario(), *i);
        ASSERT_NO_FATAL_FAILURE(seguir(false));
    }
    ASSERT_EQ(formulario(), QStringLiteral("FrmDatGen"));
    Retrato despues = Retratar(programa_->declaracion());
    // What a screen of this date does not ask.
    for (const auto* callada : {u"4.IRPFOBJET", u"5.IRPFOBJETIVA", u"A.OpcionApl"})
        despues[QString::fromUtf16(callada)] = antes.value(QString::fromUtf16(callada));
    EXPECT_EQ(despues, antes);
}

INSTANTIATE_TEST_SUITE_P(
    Caminos, CaminoEntero,
    ::testing::Combine(
        ::testing::Values("C", "E"),
        ::testing::Values(
            IdaYVuelta{Persona, 0,
                       "FrmApartado2 FrmApartado3_2015 frmApartado4_2015 frmApartado5_2015 "
                       "FrmApartado7 frmAnexoII"},
            IdaYVuelta{Persona, 20150101,
                       "FrmApartado2 FrmApartado3_2015 frmApartado4_2015 frmApartado5_2015 "
                       "FrmApartado7 frmAnexoII"},
            IdaYVuelta{
                Persona, 20141231,
                "FrmApartado2 FrmApartado3 frmApartado4 frmApartado5 FrmApartado7 frmAnexoII"},
            IdaYVuelta{PersonaDeAntes, 0,
                       "FrmApartado2 FrmApartado3 frmApartado4 frmApartado5 frmAnexoII"},
            IdaYVuelta{Empresa, 20141231, "FrmApartado2 FrmApartado3 frmApartado4 frmApartado5"},
            IdaYVuelta{Empresa, 20150101,
                       "FrmApartado2 FrmApartado3_2015 frmApartado4_2015 frmApartado5_2015"},
            IdaYVuelta{Inicio, 0, "FrmApartado3 frmApartado5"},
            IdaYVuelta{Previa, 0, "FrmApartado2 FrmApartado3_2015"},
            IdaYVuelta{Cese, 0, "frmApartado6"},
            IdaYVuelta{Comunidad, 0, "frmListaParticipes frmAnexoII"})));

}  // namespace
}  // namespace padral::pruebas
