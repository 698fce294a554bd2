// How section 2's screen is laid out, its captions and its load.

#include "sections/location/screen/frm_apartado2.h"

#include <QFrame>
#include <QVBoxLayout>

#include "sections/location/screen/frm_apartado2_tables.h"
#include "ui/fields.h"

namespace padral {

using namespace apartado2;

namespace {

constexpr int EsteApartado = 2;

constexpr int TituloPantalla = 93;
constexpr int TextoElMismo = 796;
constexpr int EntreDomicilios = 8;
constexpr int EntreTituloYCampos = 4;
constexpr int MargenPanel = 7;
constexpr int TrasElTitulo = 24;

QString nombreDe(const char16_t* campo, const char16_t* sufijo) {
    const QString regular = QString::fromUtf16(campo) + QString::fromUtf16(sufijo);
    for (const auto& propio : NombresPropios)
        if (regular == QStringView(propio.regular)) return QString::fromUtf16(propio.nombre);
    return regular;
}

}  // namespace

FrmApartado2::FrmApartado2(const Contexto& contexto, cDeclaraciones& declaracion)
    : PantallaApartado(QStringLiteral("FrmApartado2"), contexto, declaracion, EsteApartado),
      registro_(declaracion.apartado2) {
    auto* todo = new QVBoxLayout(this);
    todo->setSpacing(EntreDomicilios);
    titulo_ = Encabezado(QStringLiteral("lblTituloPantalla"), this);
    todo->addWidget(titulo_);
    for (std::size_t i = 0; i < NumDomicilios; ++i) todo->addWidget(crearDomicilio(i));
    todo->addStretch(1);
    todo->addWidget(crearBotones(BotonesAlPie));
}

FrmApartado2::~FrmApartado2() {
    if (!despedida_) estado_.FormularioOrigen = objectName();
}

QWidget* FrmApartado2::crearDomicilio(std::size_t i) {
    auto* marco = Panel(this);
    auto* caja = new QVBoxLayout(marco);
    caja->setContentsMargins(MargenPanel, MargenPanel, MargenPanel, MargenPanel);
    caja->setSpacing(EntreTituloYCampos);
    auto* cabeza = new QHBoxLayout;
    titulos_[i] = Encabezado(QString::fromUtf16(Domicilios[i].etiqueta), marco);
    cabeza->addWidget(titulos_[i]);
    if (Domicilios[i].casilla) crearMarca(i, cabeza);
    cabeza->addStretch(1);
    caja->addLayout(cabeza);
    crearDireccion(i, marco);
    caja->addWidget(direcciones_[i]);
    return marco;
}

void FrmApartado2::crearMarca(std::size_t i, QHBoxLayout* cabeza) {
    marcas_[i] = new QCheckBox(titulos_[i]->parentWidget());
    marcas_[i]->setObjectName(QString::fromUtf16(Domicilios[i].casilla));
    cabeza->addSpacing(TrasElTitulo);
    cabeza->addWidget(marcas_[i]);
    guardia_.Orden(
        marcas_[i],
        [this, i] {
            const Espera espera(pantallas_);
            pulsarElMismo(i);
        },
        [this, i] { marcas_[i]->setChecked(!(registro_.*Domicilios[i].elMismo).isEmpty()); });
}

void FrmApartado2::crearDireccion(std::size_t i, QWidget* marco) {
    const char16_t* sufijo = Domicilios[i].sufijo;
    auto listas = Listas;
    // In the fiscal domicile Esc just hides the street types.
    if (i == 0) listas[static_cast<std::size_t>(Catalogo::Vias)].escapeAlCodigo = false;
    const TablaDireccion tabla{Campos, listas,
                               [sufijo](const char16_t* campo) { return nombreDe(campo, sufijo); }};
    const Contexto contexto{estado_, pantallas_, guardia_};
    direcciones_[i] =
        new PanelDireccion(contexto, tabla, registro_.*Domicilios[i].bloque, this, marco);
    direcciones_[i]->alModificar = [this] { registro_.Modificaciones = true; };
    direcciones_[i]->alRefrescar = [this] {
        PresentarDatos();
        ActualizarEstadoControles();
    };
}

void FrmApartado2::Anadir_captions() {
    setWindowTitle(Texto(TituloPantalla));
    titulo_->setText(Texto(TituloPantalla).trimmed());
    for (std::size_t i = 0; i < NumDomicilios; ++i) {
        const QString& titulo = Texto(Domicilios[i].titulo);
        titulos_[i]->setText(titulo);
        direcciones_[i]->Anadir_captions(titulo);
        if (!marcas_[i]) continue;
        marcas_[i]->setText(Texto(TextoElMismo));
        marcas_[i]->setAccessibleName(titulo + QStringLiteral(": ") + Texto(TextoElMismo));
    }
    botones_->Anadir_captions(estado_);
}

// One query for each catalogue, whatever the number of domiciles.
void FrmApartado2::CargarListas() {
    const auto& catalogo = estado_.catalogo;
    const TablasCatalogo tablas = {catalogo.ListaSiglas(), catalogo.ListaProvincias(),
                                   catalogo.ListaMunicipios()};
    for (auto* direccion : direcciones_) direccion->CargarListas(tablas);
}

void FrmApartado2::Cargar() {
    Anadir_captions();
    CargarListas();
    PresentarDatos();
    ActualizarEstadoControles();
    registro_.Modificaciones = false;
}

QWidget* FrmApartado2::FocoInicial() { return direcciones_[0]->Campo(Dato::Siglas); }

void FrmApartado2::PresentarDatos() {
    for (std::size_t i = 0; i < NumDomicilios; ++i) {
        direcciones_[i]->PresentarDatos();
        if (marcas_[i]) ponerMarca(i, !(registro_.*Domicilios[i].elMismo).isEmpty());
    }
}

}  // namespace padral
