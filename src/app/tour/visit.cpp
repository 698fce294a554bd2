#include "app/tour/visit.h"

#include <QApplication>
#include <QDir>
#include <QFile>

#include "platform/program_folder.h"

namespace padral {

namespace {

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

}  // namespace

Visita::Visita(const QString& salida, const QString& idioma) : salida_(salida), idioma_(idioma) {
    impresora_.UsarPdf(salida);
    const PuertosUtilidades utilidades{&descarga_, &navegador_, &elecciones_};
    programa_ =
        std::make_unique<Programa>(Puertos{avisador_, reloj_, impresora_, nullptr, utilidades},
                                   CarpetaEjecutable(), carpetaNueva(salida, idioma));
    avisador_.finEspera = [this] { programa_->ventana().CursorEspera(false); };
    elecciones_.finEspera = avisador_.finEspera;
    avisador_.esEuskera = [this] { return programa_->estado().DesplazamientoIdioma != 0; };
}

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

void Visita::identificar(const QString& nif, const QString& nombre, const QString& referencia) {
    guia_->Escribir(QStringLiteral("txtDNI"), nif);
    guia_->Escribir(QStringLiteral("txtNombre"), nombre);
    guia_->Escribir(QStringLiteral("txtNumeroArchivo"), referencia);
    guia_->Escribir(QStringLiteral("mskFechaDeclaracion"),
                    fecha(QStringLiteral("21"), QStringLiteral("11"), QStringLiteral("2026")));
}

void Visita::escribir(const std::vector<std::pair<const char*, const char16_t*>>& campos) {
    for (const auto& [campo, texto] : campos)
        guia_->Escribir(QString::fromLatin1(campo), QString::fromUtf16(texto));
}

void Visita::pulsar(std::initializer_list<const char*> controles) {
    for (const char* control : controles) guia_->Pulsar(QString::fromLatin1(control));
}

void Visita::responder(std::initializer_list<int> casillas) {
    for (const int casilla : casillas) guia_->Pulsar(QStringLiteral("chk%1").arg(casilla));
}

void Visita::buscar() {
    guia_->Ordenar(QStringLiteral("Abrir"));
    foto(QStringLiteral("30-list"));
    pulsar({"cmdBuscar"});
    guia_->PulsarCelda(QStringLiteral("flxDeclaraciones"), 0, 2);
    guia_->Teclear(QStringLiteral("talleres"));
    foto(QStringLiteral("31-list-search"));
    pulsar({"cmdBuscar"});
    foto(QStringLiteral("32-list-result"));
}

void Visita::imprimirEmpresa() {
    pulsar({"cmdVerDeclaracion"});
    foto(QStringLiteral("33-opened"));
    pulsar({"cmdImprimir"});
    foto(QStringLiteral("34-print-dialog"));
    guia_->ResponderSiguiente(0, idioma_ + QStringLiteral("-35-printed"));
    pulsar({"btnAceptar"});
    foto(QStringLiteral("36-after-printing"));
    pulsar({"cmdCancelar"});
}

void Visita::imprimir(const QString& nombre) {
    guia_->Ordenar(QStringLiteral("Abrir"));
    pulsar({"cmdBuscar"});
    guia_->PulsarCelda(QStringLiteral("flxDeclaraciones"), 0, 2);
    guia_->Teclear(nombre);
    pulsar({"cmdBuscar", "cmdVerDeclaracion", "cmdImprimir"});
    guia_->ResponderSiguiente(0);
    pulsar({"btnAceptar", "cmdCancelar"});
}

void Visita::Recorrer() {
    arrancar();
    try {
        declararEmpresa();
        declararPersona();
        mirarEdicionesAnteriores();
        declararCese();
        declararComunidad();
        declararNoResidente();
        buscar();
        imprimirEmpresa();
        imprimir(QStringLiteral("aldabe"));
        imprimir(QStringLiteral("nordwind"));
        mirarVersiones();
        copiarYRestaurar();
    } catch (const GuiaPerdida& e) {
        foto(QStringLiteral("99-stopped"));
        throw GuiaPerdida(e.what() + std::string("; messages so far: ") +
                          guia_->Mensajes().join(QStringLiteral(" | ")).toStdString());
    }
    programa_->ventana().hide();
}

}  // namespace padral
