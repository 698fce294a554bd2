// Every screen and dialog of the program, in both languages and with small and large letters: no
// caption cut off, no access key used twice, no text of the other language.

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>
#include <QTest>

#include "online/frm_inicio.h"
#include "program/window_fixture.h"
#include "screens/screen_audit.h"

namespace padral::pruebas {
namespace {

struct Paseo {
    const char* idioma;
    double letra;  // size of the letters, 1: the desktop's own
};
void PrintTo(const Paseo& p, std::ostream* salida) { *salida << p.idioma << " x " << p.letra; }

/// Every form that the program may have.
constexpr const char* Formularios[] = {
    "FrmDatGen",          "FrmDecLista",       "FrmImOf",      "FrmApartado2",
    "FrmApartado3",       "FrmApartado3_2015", "frmApartado4", "frmApartado4_2015",
    "frmApartado5",       "frmApartado5_2015", "frmApartado6", "FrmApartado7",
    "frmListaParticipes", "frmDatosParticipe", "frmAnexoII",   "frmPreferencias",
    "FrmVersionCheck",    "FrmSinConexion"};

/// Controls that show both languages whatever the run, by form.
const QMap<QString, QStringList> Bilingues = {
    {QStringLiteral("FrmIdioma"),
     {QStringLiteral("FrmIdioma"), QStringLiteral("frame1"), QStringLiteral("cmdcastellano"),
      QStringLiteral("cmdeuskera"), QStringLiteral("chkActOnline"),
      QStringLiteral("lblActOnline")}},
    {QStringLiteral("FrmApartado7"),
     {QStringLiteral("lblChipre"), QStringLiteral("lblEslovaquia"), QStringLiteral("lblEslovenia"),
      QStringLiteral("lblEstonia"), QStringLiteral("lblHungria"), QStringLiteral("lblLituania"),
      QStringLiteral("lblMalta"), QStringLiteral("lblPolonia"), QStringLiteral("lblRepCheca")}},
    {QStringLiteral("frmAbout"), {QStringLiteral("lblcopy")}},
    // Each language by its own name.
    {QStringLiteral("frmPreferencias"), {QStringLiteral("optEusk"), QStringLiteral("optCast")}},
    {QStringLiteral("frmInicio"),
     {QStringLiteral("lblTitulo"), QStringLiteral("lblTitulo1"), QStringLiteral("lblVersion"),
      QStringLiteral("lblAct"), QStringLiteral("Label1"), QStringLiteral("lblDescripcion"),
      QStringLiteral("lblcopy")}},
};

class TodasLasPantallas : public ConPrograma, public ::testing::WithParamInterface<Paseo> {
protected:
    void SetUp() override {
        fuente_ = QApplication::font();
        QFont otra = fuente_;
        otra.setPointSizeF(fuente_.pointSizeF() * GetParam().letra);
        QApplication::setFont(otra);
        ConPrograma::SetUp();
        arrancar(QString::fromLatin1(GetParam().idioma));
    }
    void TearDown() override {
        guia_.reset();
        programa_.reset();
        QApplication::setFont(fuente_);
    }

    bool euskera() { return estado().DesplazamientoIdioma != 0; }

    /// Looks at a window as it stands. `nombre` is the form, `momento` what it is showing.
    void mirar(const QWidget& en, const QString& nombre, const char* momento = "") {
        vistas_.insert(nombre);
        guia().Respirar();
        const auto comprobar = [&](const QStringList& faltas) {
            EXPECT_TRUE(faltas.isEmpty()) << nombre.toStdString() << ' ' << momento << '\n'
                                          << faltas.join(u'\n').toStdString();
        };
        comprobar(RotulosCortados(en));
        comprobar(TeclasRepetidas(en));
        comprobar(TextosEnOtroIdioma(en, euskera(), Bilingues.value(nombre)));
    }
    void mirarVentana(const char* pantalla, const char* momento = "") {
        mirar(ventana(), QString::fromLatin1(pantalla), momento);
    }
    void mirarDialogo(const char* nombre, const char* salida) {
        guia().AlDialogo(QString::fromLatin1(nombre), [this, nombre, salida](QWidget* dialogo) {
            mirar(*dialogo, QString::fromLatin1(nombre));
            guia().Pulsar(QString::fromLatin1(salida));
        });
    }

    void recorrerDatosGenerales() {
        guia().Ordenar(QStringLiteral("Nueva"));
        mirarVentana("FrmDatGen", "new, first tab");
        guia().ElegirPestana(QStringLiteral("Pestaña"), 1);
        mirarVentana("FrmDatGen", "new, second tab");
        guia().Pulsar(QStringLiteral("chkDeclaracionModificacion"));
        mirarVentana("FrmDatGen", "modification");
        guia().Pulsar(QStringLiteral("cmdCancelar"));
    }
    QString fecha(const char* castellana, const char* vasca) {
        return QString::fromLatin1(euskera() ? vasca : castellana);
    }
    /// A new declaration whose effective date lies on one side of 1 January 2015 or the other.
    void declarar(bool desde2015, const char* nif = "12345678Z") {
        guia().Ordenar(QStringLiteral("Nueva"));
        guia().Escribir(QStringLiteral("txtDNI"), QString::fromLatin1(nif));
        guia().Escribir(QStringLiteral("txtNombre"), QStringLiteral("Lasa Etxe, Jon"));
        guia().Escribir(QStringLiteral("mskFechaDeclaracion"), fecha("31012026", "20260131"));
        guia().Pulsar(QStringLiteral("chkElMismo"));
        guia().Pulsar(QStringLiteral("chkDeclaracionModificacion"));
        guia().Escribir(QStringLiteral("mskFechaModificacion"),
                        desde2015 ? fecha("02112026", "20261102") : fecha("02112013", "20131102"));
        for (const char* casilla : {"chkApartado2", "chkApartado3", "chkApartado4", "chkApartado5"})
            if (!guia().Busca<QCheckBox>(QString::fromLatin1(casilla))->isChecked())
                guia().Pulsar(QString::fromLatin1(casilla));
    }
    void recorrerApartado2() {
        guia().Pulsar(QStringLiteral("cmdApartado2"));
        mirarVentana("FrmApartado2");
        guia().Escribir(QStringLiteral("txtSigDomFis"), QStringLiteral("CL"));
        guia().Pulsar(QStringLiteral("chkDSocElMismo"));
        mirarVentana("FrmApartado2", "mark");
        guia().Pulsar(QStringLiteral("cmdCancelar"));
    }
    void recorrerApartado5(const char* formulario) {
        guia().Pulsar(QStringLiteral("cmdApartado5"));
        mirarVentana(formulario);
        guia().Pulsar(QStringLiteral("chk27"));
        mirarVentana(formulario, "yes branch");
        guia().Pulsar(QStringLiteral("chk28"));
        mirarVentana(formulario, "no branch");
        guia().Pulsar(QStringLiteral("cmdCancelar"));
    }
    void recorrerApartado6() {
        guia().Ordenar(QStringLiteral("Nueva"));
        guia().Escribir(QStringLiteral("txtDNI"), QStringLiteral("12345678Z"));
        guia().Escribir(QStringLiteral("txtNombre"), QStringLiteral("Lasa Etxe, Jon"));
        guia().Escribir(QStringLiteral("mskFechaDeclaracion"), fecha("31012026", "20260131"));
        guia().Pulsar(QStringLiteral("chkElMismo"));
        guia().Pulsar(QStringLiteral("chkDeclaracionCese"));
        guia().Pulsar(QStringLiteral("cmdApartado6"));
        mirarVentana("frmApartado6");
        guia().ElegirEnCombo(QStringLiteral("cmbDescripcion"),
                             euskera() ? QStringLiteral("BESTE") : QStringLiteral("OTRAS"));
        mirarVentana("frmApartado6", "free cause");
        volver();
        guia().Pulsar(QStringLiteral("cmdCancelar"));
    }
    void recorrerParticipes() {
        declarar(true, "E12345674");
        guia().Pulsar(QStringLiteral("chkApartado8"));
        guia().Pulsar(QStringLiteral("cmdAnexo"));
        mirarVentana("frmDatosParticipe", "new");
        const std::pair<const char*, const char16_t*> campos[] = {
            {"txtDNI", u"12345678Z"},   {"txtNombre", u"Aldabe Ruiz, Jon"},
            {"txtSiglas", u"CL"},       {"txtDomicilio", u"Errota Zaharra"},
            {"txtCodProvincia", u"20"}, {"txtCodigoPostal", u"20500"},
            {"txtCodMunicipio", u"1"},  {"txtPorcentaje", u"60"}};
        for (const auto& [campo, texto] : campos)
            guia().Escribir(QString::fromLatin1(campo), QString::fromUtf16(texto));
        guia().Pulsar(QStringLiteral("cmdAceptar"));
        mirarVentana("frmDatosParticipe", "accepted");
        guia().Pulsar(QStringLiteral("cmdVolver"));
        mirarVentana("frmListaParticipes");
        guia().Pulsar(QStringLiteral("cmdBuscar"));
        mirarVentana("frmListaParticipes", "search");
        guia().Pulsar(QStringLiteral("cmdBuscar"));
        guia().Pulsar(QStringLiteral("cmdInicio"));
        guia().Pulsar(QStringLiteral("cmdCancelar"));
    }
    void recorrerAnexoII() {
        guia().Pulsar(QStringLiteral("chkAnexoII"));
        guia().Pulsar(QStringLiteral("cmdAnexoII"));
        mirarVentana("frmAnexoII");
        guia().Pulsar(QStringLiteral("chklbl1Si"));
        guia().Pulsar(QStringLiteral("chklbl5Si"));
        mirarVentana("frmAnexoII", "all questions");
        volver();
    }
    /// Cancels whatever sections are open, back to the general data.
    void volver() {
        for (int i = 0; i < 6 && !pantalla("FrmDatGen"); ++i)
            guia().Pulsar(QStringLiteral("cmdCancelar"));
    }
    void recorrerApartados() {
        for (const bool desde2015 : {false, true}) {
            declarar(desde2015);
            recorrerApartado2();
            guia().Pulsar(QStringLiteral("cmdApartado3"));
            mirarVentana(desde2015 ? "FrmApartado3_2015" : "FrmApartado3");
            volver();
            guia().Pulsar(QStringLiteral("cmdApartado4"));
            mirarVentana(desde2015 ? "frmApartado4_2015" : "frmApartado4");
            volver();
            recorrerApartado5(desde2015 ? "frmApartado5_2015" : "frmApartado5");
            volver();
            guia().Pulsar(QStringLiteral("chkApartado7"));
            guia().Pulsar(QStringLiteral("cmdApartado7"));
            mirarVentana("FrmApartado7");
            volver();
            recorrerAnexoII();
            guia().Pulsar(QStringLiteral("cmdCancelar"));
        }
        recorrerParticipes();
        recorrerApartado6();
    }
    void recorrerLista() {
        guardarUna();
        guia().Ordenar(QStringLiteral("Abrir"));
        mirarVentana("FrmDecLista", "open");
        guia().Pulsar(QStringLiteral("cmdBuscar"));
        guia().PulsarCelda(QStringLiteral("flxDeclaraciones"), 0, 2);
        guia().Teclear(QStringLiteral("lasa"));
        mirarVentana("FrmDecLista", "search");
        guia().Pulsar(QStringLiteral("cmdBuscar"));
        mirarVentana("FrmDecLista", "result");
        guia().Pulsar(QStringLiteral("cmdAnterior"));
        guia().Ordenar(QStringLiteral("Borrar"));
        mirarVentana("FrmDecLista", "delete");
        guia().Pulsar(QStringLiteral("cmdAnterior"));
    }
    void recorrerImpresion() {
        guia().Ordenar(QStringLiteral("Abrir"));
        guia().PulsarCelda(QStringLiteral("flxDeclaraciones"), 0, 1);
        guia().Pulsar(QStringLiteral("cmdVerDeclaracion"));
        mirarVentana("FrmDatGen", "stored");
        guia().Pulsar(QStringLiteral("cmdImprimir"));
        mirar(*guia().Control(QStringLiteral("FrmImOf")), QStringLiteral("FrmImOf"));
        guia().Pulsar(QStringLiteral("btnCancelar"));
        guia().Pulsar(QStringLiteral("cmdCancelar"));
    }
    void recorrerDialogos() {
        mirarDialogo("frmAbout", "cmdOK");
        guia().Ordenar(QStringLiteral("mnuabout"));
        mirarDialogo("frmPreferencias", "cmdCancelar");
        guia().Ordenar(QStringLiteral("mnuPreferencias"));
        mirarDialogo("FrmIdioma", euskera() ? "cmdeuskera" : "cmdcastellano");
        ventana().primerArranque();
        frmInicio inicio(estado());
        inicio.Cargar();
        mirar(inicio, QStringLiteral("frmInicio"));
    }
    void recorrerAyuda() {
        guia().Ordenar(QStringLiteral("mnucontenido"));
        auto* ayuda = ventana().findChild<QWidget*>(QStringLiteral("frmAyuda"));
        ASSERT_NE(ayuda, nullptr);
        mirar(*ayuda, QStringLiteral("frmAyuda"), "contents");
        QTest::keyClick(ayuda, Qt::Key_F, Qt::ControlModifier);
        mirar(*ayuda, QStringLiteral("frmAyuda"), "search");
        EXPECT_GT(buscarEnAyuda(*ayuda, u"F1", "pages found"), 1);
        EXPECT_EQ(buscarEnAyuda(*ayuda, u"xyzxyz", "no page found"), 0);
    }
    /// Looks at the search of the help with its answer to a word; the number of pages found.
    int buscarEnAyuda(QWidget& ayuda, const char16_t* palabra, const char* momento) {
        auto* campo = ayuda.findChild<QLineEdit*>(QStringLiteral("txtBuscar"));
        const auto* lista = ayuda.findChild<QListWidget*>(QStringLiteral("lstResultado"));
        if (!campo || !campo->isVisible() || !lista) return -1;
        campo->setText(QString::fromUtf16(palabra));
        QTest::keyClick(campo, Qt::Key_Return);
        guia().Respirar();
        mirar(ayuda, QStringLiteral("frmAyuda"), momento);
        return lista->count();
    }

    QFont fuente_;
    QSet<QString> vistas_;
};

TEST_P(TodasLasPantallas, SeLeenEnterasYEnSuIdioma) {
    mirarVentana("MDIPadral");
    recorrerDatosGenerales();
    recorrerApartados();
    recorrerLista();
    recorrerImpresion();
    recorrerDialogos();
    recorrerAyuda();
    for (const char* formulario : Formularios) {
        const QString nombre = QString::fromLatin1(formulario);
        EXPECT_TRUE(vistas_.contains(nombre) || !ventana().Disponible(nombre)) << formulario;
    }
}

INSTANTIATE_TEST_SUITE_P(Idiomas, TodasLasPantallas,
                         ::testing::Values(Paseo{"C", 1}, Paseo{"E", 1}, Paseo{"C", 1.5},
                                           Paseo{"E", 1.5}));

}  // namespace
}  // namespace padral::pruebas
