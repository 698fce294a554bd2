#include "app/program.h"

#include "core/help/show_help.h"
#include "core/startup.h"
#include "declaration/screen/frm_apartado6.h"
#include "declaration/screen/frm_dat_gen.h"
#include "online/frm_about.h"
#include "online/frm_idioma.h"
#include "online/frm_inicio.h"
#include "participants/screen/frm_datos_participe.h"
#include "participants/screen/frm_lista_participes.h"
#include "platform/instance_mark.h"
#include "printing/ui/frm_im_of.h"
#include "sections/location/screen/frm_apartado2.h"
#include "sections/location/screen/frm_apartado3.h"
#include "sections/tax/screen/frm_anexo2.h"
#include "sections/tax/screen/frm_apartado4.h"
#include "sections/tax/screen/frm_apartado5.h"
#include "sections/tax/screen/frm_apartado7.h"
#include "store/list/frm_dec_lista.h"
#include "ui/qt_language.h"

namespace padral {

Programa::Programa(const Puertos& puertos, const QString& carpetaEjecutable,
                   const QString& carpetaPrograma)
    : puertos_(puertos),
      carpetaEjecutable_(carpetaEjecutable),
      estado_(puertos.avisador, puertos.reloj),
      lista_(estado_),
      visorPropio_(estado_),
      teclaAyuda_([this](const QString& formulario) { ventana_->AyudaDe(formulario); }) {
    estado_.CarpetaPrograma = carpetaPrograma;
    OrdenesDeclaraciones ordenes;
    ordenes.empezar = [this](const QString& modo, const QString& entrada) {
        declaracion_->Modo = modo;
        declaracion_->csde = 0;
        if (!entrada.isEmpty()) lista_.ENTRADA = entrada;
    };
    ordenes.hayModificaciones = [this] { return declaracion_->HayModificaciones(); };
    ventana_ = std::make_unique<MDIPadral>(estado_, guardia_, std::move(ordenes));
    declaracion_ = std::make_unique<cDeclaraciones>(estado_, *ventana_, lista_);
    utilidades_ = std::make_unique<ComandosUtilidades>(puertos_.utilidades,
                                                       Contexto{estado_, *ventana_, guardia_},
                                                       *ventana_, [this] { ponerIdioma(); });
    registrarPantallas();
}

Programa::~Programa() {
    // The screens hold references to the declaration.
    ventana_.reset();
}

bool Programa::Iniciar() {
    MarcarInstancia();
    ObtenerVersionPrograma(estado_, carpetaEjecutable_);
    ObtenerRutas(estado_);
    {
        const Espera espera(*ventana_);
        if (utilidades_->traspasar(estado_)) return false;
    }
    InicializarSesion(estado_);
    idiomaConocido_ = true;
    ponerIdioma();
    return true;
}

void Programa::MostrarVentana() {
    {
        frmInicio inicio(estado_, utilidades_->OrdenesDeVersion());
        inicio.Cargar();
    }
    ventana_->MostrarEnPantalla();
}

void Programa::ponerIdioma() {
    InstalarTraduccionQt(estado_.mdi.IDI());
    ventana_->Anadir_captions();
}

QWidget* Programa::CrearLista() {
    return new FrmDecLista({estado_, *ventana_, guardia_}, *declaracion_, lista_);
}

void Programa::registrarApartados(const Contexto& contexto) {
    registrar<FrmApartado2>(contexto, QStringLiteral("FrmApartado2"));
    registrarEdiciones<FrmApartado3>(contexto, QStringLiteral("FrmApartado3"));
    registrarEdiciones<frmApartado4>(contexto, QStringLiteral("frmApartado4"));
    registrarEdiciones<frmApartado5>(contexto, QStringLiteral("frmApartado5"));
    registrar<frmApartado6>(contexto, QStringLiteral("frmApartado6"));
    registrar<FrmApartado7>(contexto, QStringLiteral("FrmApartado7"));
    registrar<frmListaParticipes>(contexto, QStringLiteral("frmListaParticipes"));
    registrar<frmDatosParticipe>(contexto, QStringLiteral("frmDatosParticipe"));
    registrar<frmAnexoII>(contexto, QStringLiteral("frmAnexoII"));
}

template <class Formulario>
void Programa::registrar(const Contexto& contexto, const QString& nombre) {
    ventana_->Registrar(
        nombre, [this, contexto]() -> QWidget* { return new Formulario(contexto, *declaracion_); });
}

template <class Formulario>
void Programa::registrarEdiciones(const Contexto& contexto, const QString& nombre) {
    const auto registrarUna = [&](const QString& conEdicion, Edicion edicion) {
        ventana_->Registrar(conEdicion, [this, contexto, edicion]() -> QWidget* {
            return new Formulario(contexto, *declaracion_, edicion);
        });
    };
    registrarUna(nombre, Edicion::Hasta2014);
    registrarUna(nombre + QStringLiteral("_2015"), Edicion::Desde2015);
}

void Programa::registrarPantallas() {
    const Contexto contexto{estado_, *ventana_, guardia_};
    ventana_->Registrar(QStringLiteral("FrmDatGen"), [this, contexto]() -> QWidget* {
        return new FrmDatGen(contexto, *declaracion_, lista_);
    });
    ventana_->Registrar(QStringLiteral("FrmDecLista"),
                        [this]() -> QWidget* { return CrearLista(); });
    registrarApartados(contexto);
    ventana_->Registrar(QStringLiteral("FrmImOf"), [this, contexto]() -> QWidget* {
        return new FrmImOf(contexto, *declaracion_, puertos_.impresora);
    });
    ventana_->primerArranque = [this] {
        FrmIdioma idioma(
            estado_, [this] { ponerIdioma(); }, ventana_.get(), utilidades_->OrdenesDeVersion());
        idioma.exec();
    };
    ventana_->PonerComando(QStringLiteral("mnuabout"),
                           [this] { frmAbout(estado_, ventana_.get()).exec(); });
    utilidades_->Conectar();
    ventana_->mostrarAyuda = [this](const QString& tema) {
        VisorAyuda* visor = puertos_.visorAyuda ? puertos_.visorAyuda : &visorPropio_;
        MostrarAyuda(estado_, *visor, tema, ventana_.get());
    };
}

}  // namespace padral
