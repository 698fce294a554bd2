// The tour: the real program, offscreen, driven through its real widgets. It enters declarations,
// saves, finds, opens and prints them, and leaves a picture of every screen and the printed PDF.

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QTextStream>

#include "app/application.h"
#include "app/program.h"
#include "app/tour/guide.h"
#include "platform/program_folder.h"
#include "printing/ui/printer_factory.h"
#include "ui/message_box.h"

namespace padral {

namespace {

/// The splash shows as long as it takes to photograph it.
class RelojVisita : public RelojSistema {
public:
    std::function<void()> alEsperar;
    void Esperar(int) override {
        RelojSistema::Esperar(50);
        if (alEsperar) alEsperar();
    }
};

/// A program folder of its own, so that the user's declarations stay out of it.
QString carpetaNueva(const QString& salida, const QString& nombre) {
    const QString carpeta = salida + QStringLiteral("/data-") + nombre;
    QDir(carpeta).removeRecursively();
    const QString tablas = carpeta + QStringLiteral("/Tablas");
    QDir().mkpath(tablas);
    const QDir origen(CarpetaEjecutable() + QStringLiteral("/../data"));
    for (const QString& fichero :
         {QStringLiteral("DPadralLec.mdb"), QStringLiteral("DPadralMod.mdb")})
        if (!QFile::copy(origen.filePath(fichero), tablas + u'/' + fichero))
            throw GuiaPerdida("cannot copy " + fichero.toStdString());
    return carpeta;
}

/// One run of the program in one language.
class Visita {
public:
    Visita(const QString& salida, const QString& idioma) : salida_(salida), idioma_(idioma) {
        impresora_.UsarPdf(salida);
        programa_ = std::make_unique<Programa>(Puertos{avisador_, reloj_, impresora_},
                                               CarpetaEjecutable(), carpetaNueva(salida, idioma));
        avisador_.finEspera = [this] { programa_->ventana().CursorEspera(false); };
        avisador_.esEuskera = [this] { return programa_->estado().DesplazamientoIdioma != 0; };
    }

    void Recorrer();

private:
    void arrancar();
    void declararEmpresa();
    void declararDomicilios();
    void declararDatos();
    void declararSolicitudes();
    void declararSituacion();
    void escribir(const std::vector<std::pair<const char*, const char16_t*>>& campos);
    void declararPersona();
    void mirarEdicionesAnteriores();
    void buscar();
    void imprimir();
    void foto(const QString& nombre) { guia_->Foto(idioma_ + u'-' + nombre); }
    void nueva();
    void identificar(const QString& nif, const QString& nombre, const QString& referencia,
                     const QString& fecha);
    QString fecha(const QString& dia, const QString& mes, const QString& anyo) const {
        return idioma_ == QStringLiteral("es") ? dia + mes + anyo : anyo + mes + dia;
    }

    QString salida_, idioma_;
    AvisadorPantalla avisador_;
    RelojVisita reloj_;
    FabricaQt impresora_{reloj_};
    std::unique_ptr<Programa> programa_;
    std::unique_ptr<Guia> guia_;
};

void Visita::arrancar() {
    guia_ = std::make_unique<Guia>(&programa_->ventana(), salida_);
    if (!programa_->Iniciar()) throw GuiaPerdida("the start ended the program");
    reloj_.alEsperar = [this] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == QStringLiteral("frmInicio"))
                w->grab().save(salida_ + u'/' + idioma_ + QStringLiteral("-01-splash.png"));
    };
    guia_->AlDialogo(QStringLiteral("FrmIdioma"), [this](QWidget* dialogo) {
        foto(QStringLiteral("02-language"));
        const bool castellano = idioma_ == QStringLiteral("es");
        guia_->Pulsar(castellano ? QStringLiteral("cmdcastellano") : QStringLiteral("cmdeuskera"));
        Q_UNUSED(dialogo)
    });
    programa_->MostrarVentana();
    // The offscreen display is smaller than the smallest that the program is made for.
    programa_->ventana().showNormal();
    programa_->ventana().resize(1280, 720);
    for (int i = 0; i < 50 && programa_->estado().act.ActOnline < 0; ++i) guia_->Respirar();
    guia_->TomarVentana();
    foto(QStringLiteral("03-main-window"));
}

void Visita::nueva() { guia_->Ordenar(QStringLiteral("Nueva")); }

void Visita::identificar(const QString& nif, const QString& nombre, const QString& referencia,
                         const QString& fechaDeclaracion) {
    guia_->Escribir(QStringLiteral("txtDNI"), nif);
    guia_->Escribir(QStringLiteral("txtNombre"), nombre);
    guia_->Escribir(QStringLiteral("txtNumeroArchivo"), referencia);
    guia_->Escribir(QStringLiteral("mskFechaDeclaracion"), fechaDeclaracion);
}

void Visita::declararEmpresa() {
    nueva();
    foto(QStringLiteral("04-general-data-new"));
    identificar(QStringLiteral("A12345674"), QStringLiteral("Talleres Ibaialde, S.A."),
                QStringLiteral("2026/0417"),
                fecha(QStringLiteral("21"), QStringLiteral("11"), QStringLiteral("2026")));
    guia_->Pulsar(QStringLiteral("chkDeclaracionModificacion"));
    guia_->Escribir(QStringLiteral("mskFechaModificacion"),
                    fecha(QStringLiteral("02"), QStringLiteral("11"), QStringLiteral("2026")));
    guia_->Pulsar(QStringLiteral("chkPorDefinitivo"));
    guia_->Escribir(QStringLiteral("mskFechaInscrip"),
                    fecha(QStringLiteral("15"), QStringLiteral("10"), QStringLiteral("2026")));
    guia_->ElegirPestana(QStringLiteral("Pestaña"), 1);
    guia_->ElegirEnCombo(QStringLiteral("cmbMotivoCambio"), QStringLiteral("20"));
    guia_->Escribir(QStringLiteral("txtNombreAnterior"), QStringLiteral("Talleres Mendi, S.A."));
    foto(QStringLiteral("05-change-of-identity"));
    guia_->ResponderSiguiente(0, idioma_ + QStringLiteral("-06-rule"));
    guia_->Pulsar(QStringLiteral("cmdAceptar"));
    guia_->Escribir(QStringLiteral("txtDNIRepresentante"), QStringLiteral("12345678Z"));
    guia_->Escribir(QStringLiteral("txtNombreRepresentante"), QStringLiteral("Agirre Soto, Miren"));
    guia_->Escribir(QStringLiteral("txtFirmaEnCalidadDe"), QStringLiteral("Administradora"));
    guia_->ElegirPestana(QStringLiteral("Pestaña"), 0);
    for (const char* casilla : {"chkApartado2", "chkApartado3", "chkApartado4", "chkApartado5"})
        guia_->Pulsar(QString::fromLatin1(casilla));
    foto(QStringLiteral("07-general-data-filled"));
    declararDomicilios();
    declararDatos();
    declararSolicitudes();
    declararSituacion();
    guia_->Pulsar(QStringLiteral("cmdAceptar"));
}

void Visita::escribir(const std::vector<std::pair<const char*, const char16_t*>>& campos) {
    for (const auto& [campo, texto] : campos)
        guia_->Escribir(QString::fromLatin1(campo), QString::fromUtf16(texto));
}

void Visita::declararDomicilios() {
    guia_->Pulsar(QStringLiteral("cmdApartado2"));
    escribir({{"txtSigDomFis", u"CL"},
              {"txtDomFis", u"Errota Zaharra"},
              {"numNumFis", u"12"},
              {"txtPisFis", u"3"},
              {"txtManFis", u"B"},
              {"numCodProvFis", u"20"},
              {"numCodFis", u"20500"},
              {"numCodMunFis", u"1"},
              {"numTelFis", u"943112233"}});
    guia_->Pulsar(QStringLiteral("chkDSocElMismo"));
    escribir({{"txtSigDomAct", u"PG"}, {"txtDomAct", u"Ibaialde"}});
    guia_->Pulsar(QStringLiteral("cmdLstProvAct"));
    foto(QStringLiteral("16-provinces"));
    guia_->Tecla(Qt::Key_Escape);
    escribir({{"numCodProvAct", u"1"}, {"numCodact", u"01005"}, {"txtMunAct", u"Vitoria"}});
    foto(QStringLiteral("17-section2"));
    guia_->Pulsar(QStringLiteral("cmdApartadoSiguiente"));
}

void Visita::declararDatos() {
    guia_->Pulsar(QStringLiteral("optResidente(0)"));
    escribir({{"txtDescripcionActividad", u"1.6912"}, {"txtAnagrama", u"Ibaialde"}});
    guia_->ElegirEnCombo(QStringLiteral("cmbDescFormaJuridica"), QStringLiteral("S"));
    for (const char* casilla :
         {"chkEuskera", "chkElectronico", "chkCorreoAlta", "chkTelMovilAlta", "chkConsentimiento"})
        guia_->Pulsar(QString::fromLatin1(casilla));
    escribir({{"txtDirCorreo", u"tailerra@ibaialde.example"}, {"numMovil", u"600112233"}});
    foto(QStringLiteral("18-section3"));
    guia_->Pulsar(QStringLiteral("cmdSiguiente"));
}

void Visita::declararSolicitudes() {
    for (const char* casilla : {"ChkEX1", "ChkEXIntr1", "ChkBI1", "ChkSO1"})
        guia_->Pulsar(QString::fromLatin1(casilla));
    escribir({{"txtNIF", u"E12345674"}, {"txtNombre", u"Lasa anaiak"}});
    foto(QStringLiteral("19-section4"));
    guia_->Pulsar(QStringLiteral("cmdSiguiente"));
}

void Visita::declararSituacion() {
    // Yes to corporate tax and to the withholdings of wages, no to the rest down to the VAT.
    for (const int casilla :
         {2, 3, 6, 8, 10, 12, 14, 16, 17, 20, 22, 26, 27, 29, 32, 34, 38, 40, 42, 44, 46, 56})
        guia_->Pulsar(QStringLiteral("chk%1").arg(casilla));
    foto(QStringLiteral("20-section5"));
    guia_->Pulsar(QStringLiteral("cmdInicio"));
}

void Visita::declararPersona() {
    nueva();
    identificar(QStringLiteral("X1234567L"), QStringLiteral("Ñuñez Zubia, Ane"),
                QStringLiteral("2026/0418"),
                fecha(QStringLiteral("21"), QStringLiteral("11"), QStringLiteral("2026")));
    guia_->Pulsar(QStringLiteral("chkDeclaracionInicio"));
    guia_->Pulsar(QStringLiteral("chkElMismo"));
    guia_->Tecla(Qt::Key_F1);
    foto(QStringLiteral("15-help"));
    guia_->Tecla(Qt::Key_Escape);
    guia_->TomarVentana();
    mirarEdicionesAnteriores();
    guia_->Pulsar(QStringLiteral("cmdAceptar"));
}

// Without an effective date the sections open in their edition before 2015.
void Visita::mirarEdicionesAnteriores() {
    for (const int apartado : {3, 4, 5}) {
        const QString casilla = QStringLiteral("chkApartado%1").arg(apartado);
        if (!guia_->Busca<QCheckBox>(casilla)->isChecked()) guia_->Pulsar(casilla);
        guia_->Pulsar(QStringLiteral("cmdApartado%1").arg(apartado));
        if (apartado == 5) guia_->Pulsar(QStringLiteral("chk28"));
        foto(QStringLiteral("%1-section%2-2014").arg(apartado + 18).arg(apartado));
        while (!programa_->ventana().findChild<QWidget*>(QStringLiteral("FrmDatGen")))
            guia_->Pulsar(QStringLiteral("cmdCancelar"));
    }
}

void Visita::buscar() {
    guia_->Ordenar(QStringLiteral("Abrir"));
    foto(QStringLiteral("08-list"));
    guia_->Pulsar(QStringLiteral("cmdBuscar"));
    guia_->PulsarCelda(QStringLiteral("flxDeclaraciones"), 0, 2);
    guia_->Teclear(QStringLiteral("talleres"));
    foto(QStringLiteral("09-list-search"));
    guia_->Pulsar(QStringLiteral("cmdBuscar"));
    foto(QStringLiteral("10-list-result"));
}

void Visita::imprimir() {
    guia_->Pulsar(QStringLiteral("cmdVerDeclaracion"));
    foto(QStringLiteral("11-opened"));
    guia_->Pulsar(QStringLiteral("cmdImprimir"));
    foto(QStringLiteral("12-print-dialog"));
    guia_->ResponderSiguiente(0, idioma_ + QStringLiteral("-13-printed"));
    guia_->Pulsar(QStringLiteral("btnAceptar"));
    foto(QStringLiteral("14-after-printing"));
    guia_->Pulsar(QStringLiteral("cmdCancelar"));
}

void Visita::Recorrer() {
    arrancar();
    try {
        declararEmpresa();
        declararPersona();
        buscar();
        imprimir();
    } catch (const GuiaPerdida& e) {
        foto(QStringLiteral("99-stopped"));
        throw GuiaPerdida(e.what() + std::string("; messages so far: ") +
                          guia_->Mensajes().join(QStringLiteral(" | ")).toStdString());
    }
    programa_->ventana().hide();
}

int recorrer(const QString& salida) {
    QTextStream consola(stdout);
    QDir().mkpath(salida);
    // What an earlier tour left would be taken for the work of this one.
    const QStringList viejos = {QStringLiteral("*.png"), QStringLiteral("*.pdf")};
    for (const QString& viejo : QDir(salida).entryList(viejos, QDir::Files))
        QFile::remove(salida + u'/' + viejo);
    try {
        for (const QString& idioma : {QStringLiteral("es"), QStringLiteral("eu")})
            Visita(salida, idioma).Recorrer();
    } catch (const GuiaPerdida& e) {
        consola << "The tour stopped: " << e.what() << Qt::endl;
        return 1;
    }
    const auto pdf = QDir(salida).entryList({QStringLiteral("*.pdf")}, QDir::Files, QDir::Name);
    const auto fotos = QDir(salida).entryList({QStringLiteral("*.png")}, QDir::Files);
    consola << "The tour is over: " << fotos.size() << " pictures of the screens (*.png) and "
            << pdf.size() << " printed documents (*.pdf) are in" << Qt::endl
            << "  " << QDir(salida).absolutePath() << Qt::endl;
    for (const QString& fichero : pdf) consola << "  " << fichero << Qt::endl;
    return pdf.isEmpty() || fotos.isEmpty() ? 1 : 0;
}

}  // namespace

}  // namespace padral

int main(int argc, char** argv) {
    padral::Aplicacion aplicacion(argc, argv);
    aplicacion.alFallar = [](const QString& castellano, const QString&) {
        QTextStream(stderr) << castellano << Qt::endl;
    };
    const auto argumentos = QCoreApplication::arguments();
    int estado = 1;
    aplicacion.Proteger(
        [&] { estado = padral::recorrer(argumentos.value(1, QStringLiteral("out"))); });
    return estado;
}
