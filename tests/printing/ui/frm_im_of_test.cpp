// The print dialog, clicked and typed at, with a recording printer.

#include "printing/ui/frm_im_of.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QtTest/QTest>

#include "platform/failure.h"
#include "support/recorders.h"
#include "support/recording_printer.h"

namespace padral::test {
namespace {

class DestinoRegistro : public DestinoImpresion {
public:
    FabricaRegistro fabrica;
    int elecciones = 0;
    int olvidos = 0;
    QStringList ficheros;

    std::unique_ptr<Impresora> Abrir(const QString& titulo) override {
        return fabrica.Abrir(titulo);
    }
    void Elegir(QWidget* padre) override {
        EXPECT_EQ(padre->objectName(), u"FrmImOf");
        ++elecciones;
    }
    QStringList TomarFicheros() override { return std::exchange(ficheros, {}); }
    void OlvidarNombre() override { ++olvidos; }
};

class Dialogo : public testing::Test {
protected:
    pruebas::GrabadorAvisos avisos;
    pruebas::RelojFijo reloj;
    EstadoCompartido estado{avisos, reloj};
    pruebas::GrabadorPantallas pantallas;
    GuardiaCampos guardia;
    cDecLista lista{estado};
    cDeclaraciones declaracion{estado, pantallas, lista};
    DestinoRegistro destino;
    std::unique_ptr<FrmImOf> dialogo;

    void SetUp() override {
        declaracion.csde = 7;
        declaracion.Modo = QStringLiteral("A");
        declaracion.general.DNI = QStringLiteral("12345678Z");
        estado.FormularioOrigen = QStringLiteral("FrmApartado2");
        Abrir();
    }
    void Abrir() {
        dialogo =
            std::make_unique<FrmImOf>(Contexto{estado, pantallas, guardia}, declaracion, destino);
        dialogo->open();
    }
    template <class Control>
    Control* De(const char16_t* nombre) const {
        auto* control = dialogo->findChild<Control*>(QString::fromUtf16(nombre));
        EXPECT_NE(control, nullptr) << QString::fromUtf16(nombre).toStdString();
        return control;
    }
    void Pulsar(const char16_t* nombre) const {
        auto* control = De<QAbstractButton>(nombre);
        QTest::mouseClick(control, Qt::LeftButton, {}, {8, control->height() / 2});
    }
    QStringList Titulos() const {
        QStringList titulos;
        for (const auto& d : destino.fabrica.documentos) titulos << d->titulo;
        return titulos;
    }
    /// What every way out leaves behind.
    void EsperaCicloNuevo() {
        EXPECT_FALSE(dialogo->isVisible());
        EXPECT_EQ(pantallas.Tomar(), QStringList(QStringLiteral("Mostrar FrmDatGen")));
        EXPECT_EQ(declaracion.Modo, u"C");
        EXPECT_EQ(declaracion.csde, 7);
        EXPECT_TRUE(declaracion.general.DNI.isEmpty());
        EXPECT_EQ(estado.FormularioOrigen, u"MDIPadral");
        EXPECT_FALSE(pantallas.EnEspera());
    }
};

struct FilaControl {
    const char16_t *nombre, *texto, *ayuda;
};
const FilaControl controles[] = {
    {u"optTipoImpreso(0)", u"Oficial", u""},
    {u"optTipoImpreso(1)", u"Borrador", u""},
    {u"chkCopiaAdministracion", u"Copia Administración", u""},
    {u"chkCopiaInteresado", u"Copia Interesado", u""},
    {u"btnOpcionesImpresora", u"&Opciones Impresora",
     u"Muestra las diferentes opciones existentes para la configuración de la impresora."},
    {u"btnCancelar", u"&Cancelar", u"Salir. No se realiza la impresión de la declaración."},
    {u"btnAceptar", u"&Aceptar", u"Se realiza la impresión de la declaración."},
};
const std::pair<const char16_t*, const char16_t*> marcos[] = {
    {u"fraopciones", u" OPCIONES DE IMPRESIÓN "},
    {u"frameTipoImpreso", u"Tipo de Impreso"},
    {u"fracopias", u"  Copias  "},
};

TEST_F(Dialogo, RotulosEnCastellano) {
    EXPECT_EQ(dialogo->objectName(), u"FrmImOf");
    EXPECT_EQ(dialogo->windowTitle(), u" IMPRESIÓN");
    for (const auto& fila : controles) {
        EXPECT_EQ(De<QAbstractButton>(fila.nombre)->text(), QStringView(fila.texto));
        EXPECT_EQ(De<QAbstractButton>(fila.nombre)->toolTip(), QStringView(fila.ayuda));
    }
    for (const auto& [nombre, texto] : marcos)
        EXPECT_EQ(De<QGroupBox>(nombre)->title(), QStringView(texto));
}

TEST_F(Dialogo, RotulosEnEuskera) {
    estado.DesplazamientoIdioma = CatalogoTextos::DesplazamientoEuskera;
    Abrir();
    EXPECT_EQ(dialogo->windowTitle(), estado.textos.Texto(10594));
    EXPECT_EQ(De<QGroupBox>(u"fraopciones")->title(), estado.textos.Texto(10595));
    EXPECT_EQ(De<QAbstractButton>(u"optTipoImpreso(0)")->text(), estado.textos.Texto(10603));
    EXPECT_EQ(De<QAbstractButton>(u"btnAceptar")->text(), estado.textos.Texto(10346));
    EXPECT_EQ(De<QAbstractButton>(u"btnAceptar")->toolTip(), estado.textos.Texto(10607));
}

TEST_F(Dialogo, AlAbrir) {
    EXPECT_TRUE(De<QRadioButton>(u"optTipoImpreso(0)")->isChecked());
    EXPECT_FALSE(De<QRadioButton>(u"optTipoImpreso(1)")->isChecked());
    EXPECT_TRUE(De<QCheckBox>(u"chkCopiaAdministracion")->isChecked());
    EXPECT_TRUE(De<QCheckBox>(u"chkCopiaInteresado")->isChecked());
    EXPECT_EQ(dialogo->focusWidget(), De<QWidget>(u"optTipoImpreso(0)"));
    EXPECT_TRUE(De<QPushButton>(u"btnAceptar")->isDefault());
}

TEST_F(Dialogo, LasOpcionesSeExcluyen) {
    Pulsar(u"optTipoImpreso(1)");
    EXPECT_FALSE(De<QRadioButton>(u"optTipoImpreso(0)")->isChecked());
    EXPECT_TRUE(De<QRadioButton>(u"optTipoImpreso(1)")->isChecked());
    Pulsar(u"optTipoImpreso(0)");
    EXPECT_TRUE(De<QRadioButton>(u"optTipoImpreso(0)")->isChecked());
    EXPECT_FALSE(De<QRadioButton>(u"optTipoImpreso(1)")->isChecked());
}

TEST_F(Dialogo, OficialConLasDosCopias) {
    Pulsar(u"btnAceptar");
    EXPECT_EQ(Titulos(), (QStringList{QStringLiteral("417-12345678Z-AD"),
                                      QStringLiteral("417-12345678Z-IT")}));
    // The records are blanked after the print, not before.
    EXPECT_TRUE(destino.fabrica.documentos[1]->Textos().contains(QStringLiteral("12345678Z")));
    EsperaCicloNuevo();
    EXPECT_GT(pantallas.EsperasTotales, 0);
}

TEST_F(Dialogo, OficialConUnaCopia) {
    Pulsar(u"chkCopiaAdministracion");
    Pulsar(u"btnAceptar");
    EXPECT_EQ(Titulos(), QStringList(QStringLiteral("417-12345678Z-IT")));
}

TEST_F(Dialogo, OficialSinCopiasAvisaYSigueAbierto) {
    Pulsar(u"chkCopiaAdministracion");
    Pulsar(u"chkCopiaInteresado");
    avisos.Espera(QStringLiteral("Seleccionar copias a imprimir"), QStringLiteral("Error"));
    Pulsar(u"btnAceptar");
    EXPECT_TRUE(dialogo->isVisible());
    EXPECT_TRUE(Titulos().isEmpty());
    EXPECT_TRUE(pantallas.Tomar().isEmpty());
    EXPECT_FALSE(pantallas.EnEspera());
}

TEST_F(Dialogo, ElBorradorEsUnoYNoMiraLasCopias) {
    for (const bool conCopias : {true, false}) {
        destino.fabrica.documentos.clear();
        SetUp();
        Pulsar(u"optTipoImpreso(1)");
        if (!conCopias) {
            Pulsar(u"chkCopiaAdministracion");
            Pulsar(u"chkCopiaInteresado");
        }
        Pulsar(u"btnAceptar");
        EXPECT_EQ(Titulos(), QStringList(QStringLiteral("417-12345678Z-BO")));
        EsperaCicloNuevo();
    }
}

TEST_F(Dialogo, TodasLasSalidasAbrenUnCicloNuevo) {
    const std::function<void()> salidas[] = {
        [this] { Pulsar(u"btnCancelar"); },
        [this] { QTest::keyClick(dialogo.get(), Qt::Key_Escape); },
        [this] { dialogo->close(); },
        [this] { QTest::mouseClick(De<QWidget>(u"PicCan"), Qt::LeftButton); },
    };
    for (const auto& salida : salidas) {
        SetUp();
        salida();
        EXPECT_TRUE(Titulos().isEmpty());
        EsperaCicloNuevo();
    }
}

TEST_F(Dialogo, LaImagenHaceLoMismoQueAceptar) {
    QTest::mouseClick(De<QWidget>(u"PicOKey"), Qt::LeftButton);
    EXPECT_EQ(Titulos().size(), 2);
    EsperaCicloNuevo();
}

TEST_F(Dialogo, EleccionDeImpresora) {
    Pulsar(u"btnOpcionesImpresora");
    EXPECT_EQ(destino.elecciones, 1);
    EXPECT_TRUE(dialogo->isVisible());
    // The printer dialog needs the user: no wait while it shows.
    EXPECT_EQ(pantallas.EsperasTotales, 0);
}

/// As the user reads it: the mark that keeps a name on its line does not show.
QString Leido(QString texto) { return texto.remove(QChar(0x2060)); }

TEST_F(Dialogo, DiceDondeEstanLosFicheros) {
    destino.ficheros = {QStringLiteral("/casa/mis-pdf/417-1-AD.pdf"),
                        QStringLiteral("/casa/mis-pdf/ibaialde.pdf")};
    avisos.alMostrar = [](const Mensaje& mensaje) {
        EXPECT_EQ(Leido(mensaje.texto),
                  u"La declaración se ha guardado en la carpeta\n"
                  u"/casa/mis-pdf\n"
                  u"en estos ficheros PDF:\n"
                  u"417-1-AD.pdf\n"
                  u"ibaialde.pdf");
    };
    // A line may break after a hyphen: not in the names.
    avisos.Espera(QStringLiteral("La declaración se ha guardado en la carpeta\n/casa/mis-pdf\n"
                                 "en estos ficheros PDF:\n"
                                 "417-\u20601-\u2060AD.pdf\nibaialde.pdf"),
                  QStringLiteral(" IMPRESIÓN"));
    Pulsar(u"btnAceptar");
    EsperaCicloNuevo();
}

TEST_F(Dialogo, UnSoloFichero) {
    const std::pair<bool, QString> filas[] = {
        {false, QStringLiteral("La declaración se ha guardado en la carpeta\n/casa\n"
                               "en este fichero PDF:\nuno.pdf")},
        {true, QStringLiteral("Aitorpena karpeta honetan gorde da:\n/casa\n"
                              "PDF fitxategi honetan:\nuno.pdf")}};
    for (const auto& [euskera, texto] : filas) {
        if (euskera) estado.DesplazamientoIdioma = CatalogoTextos::DesplazamientoEuskera;
        SetUp();
        destino.ficheros = {QStringLiteral("/casa/uno.pdf")};
        avisos.Espera(texto, estado.Texto(594));
        Pulsar(u"btnAceptar");
    }
}

TEST_F(Dialogo, ElNombreDelFicheroSeOlvidaAlCerrar) {
    Pulsar(u"btnOpcionesImpresora");
    EXPECT_EQ(destino.olvidos, 0);
    Pulsar(u"btnCancelar");
    EXPECT_EQ(destino.olvidos, 1);
}

TEST_F(Dialogo, SaleEnElCentroDeLaVentana) {
    QWidget ventana;
    for (const QRect& lugar : {QRect(40, 30, 700, 520), QRect(101, 77, 555, 444)}) {
        ventana.setGeometry(lugar);
        ventana.show();
        auto* nuevo = new FrmImOf(Contexto{estado, pantallas, guardia}, declaracion, destino);
        nuevo->setParent(&ventana, nuevo->windowFlags() | Qt::Dialog);
        nuevo->open();
        const QPoint desvio = nuevo->frameGeometry().center() - ventana.frameGeometry().center();
        EXPECT_LE(std::abs(desvio.x()), 1);
        EXPECT_LE(std::abs(desvio.y()), 1);
        delete nuevo;
    }
}

TEST_F(Dialogo, NoSeSaleDeLaPantalla) {
    QWidget ventana;
    ventana.setGeometry(-600, -500, 700, 520);
    ventana.show();
    auto* nuevo = new FrmImOf(Contexto{estado, pantallas, guardia}, declaracion, destino);
    nuevo->setParent(&ventana, nuevo->windowFlags() | Qt::Dialog);
    nuevo->open();
    EXPECT_TRUE(nuevo->screen()->availableGeometry().contains(nuevo->frameGeometry()));
}

// The command itself: a failure ends the process, so that nothing of the toolkit it passes
// through has to tidy up after it.
TEST_F(Dialogo, UnFalloDeLaImpresoraPasaDeLargo) {
    destino.fabrica.documentoQueFalla = 1;
    destino.fabrica.fallaEn = 5;
    EXPECT_THROW(dialogo->Aceptar(), Fallo);
    EXPECT_TRUE(destino.fabrica.documentos[0]->cerrado);
    EXPECT_FALSE(destino.fabrica.documentos[1]->cerrado);
    EXPECT_FALSE(pantallas.EnEspera());
    EXPECT_TRUE(pantallas.Tomar().isEmpty());
}

}  // namespace
}  // namespace padral::test
