// How a participant's screen is laid out, its captions and its load. Controls are made in reading
// order, which Tab follows.

#include "participants/screen/frm_datos_participe.h"

#include <QBoxLayout>
#include <QFrame>
#include <QGridLayout>

#include "participants/screen/frm_datos_participe_tables.h"

namespace padral {

using namespace participe;

namespace {

constexpr int TituloPantalla = 345, Flecha = 370;
constexpr Rotulo RotuloDNI{u"lblDNI", 355}, RotuloNombre{u"lblNombre", 356};
constexpr Rotulo RotuloPorcentaje{u"lblFechaDeclaracion", 357};
constexpr int AnchoDNI = 9, AnchoNombre = 30, EnterosPorcentaje = 3, AnchoPorcentaje = 6;
constexpr std::size_t BotonesAlPrincipio = 2;
constexpr int EntreFilas = 8, EntreColumnas = 18, EntreBloques = 48, JuntoAlCampo = 8;

/// A caption above its field.
QBoxLayout* sobre(QLabel* etiqueta, QWidget* campo) {
    etiqueta->setBuddy(campo);
    auto* caja = new QVBoxLayout;
    caja->setSpacing(1);
    caja->addWidget(etiqueta);
    caja->addWidget(campo);
    return caja;
}

}  // namespace

frmDatosParticipe::frmDatosParticipe(const Contexto& contexto, cDeclaraciones& declaracion)
    : Pantalla(QStringLiteral("frmDatosParticipe"), contexto), declaracion_(declaracion) {
    auto* todo = new QVBoxLayout(this);
    auto* titulo = Encabezado(QStringLiteral("lblTituloPantalla"), this);
    etiquetas_.emplace_back(titulo, TituloPantalla);
    todo->addWidget(titulo);
    todo->addWidget(crearPersona());
    todo->addWidget(crearParticipacion());
    todo->addStretch(1);
    botones_ = new BotonesApartado(BotonesAlPie, BotonesAlPrincipio, this);
    todo->addWidget(botones_);
    conectarCampos();
    conectarCasillas();
    conectarBotones();
}

QLabel* frmDatosParticipe::etiquetaDe(const Rotulo& rotulo, QWidget* padre) {
    auto* etiqueta = Etiqueta(QString::fromUtf16(rotulo.nombre), padre);
    etiquetas_.emplace_back(etiqueta, rotulo.texto);
    return etiqueta;
}

QWidget* frmDatosParticipe::crearPersona() {
    auto* marco = Panel(this);
    auto* caja = new QVBoxLayout(marco);
    caja->setSpacing(EntreFilas);
    txtDNI_ = new CampoTexto(QStringLiteral("txtDNI"), AnchoDNI, marco);
    txtNombre_ = new CampoTexto(QStringLiteral("txtNombre"), AnchoNombre, marco);
    txtDNI_->setFixedWidth(AnchoDe(txtDNI_, AnchoDNI + 2));
    txtNombre_->setFixedWidth(AnchoDe(txtNombre_, AnchoNombre + 10));
    auto* linea = new QHBoxLayout;
    linea->setSpacing(EntreColumnas);
    linea->addLayout(sobre(etiquetaDe(RotuloDNI, marco), txtDNI_));
    linea->addLayout(sobre(etiquetaDe(RotuloNombre, marco), txtNombre_));
    linea->addStretch(1);
    caja->addLayout(linea);
    crearDireccion(marco);
    caja->addWidget(direccion_);
    return marco;
}

void frmDatosParticipe::crearDireccion(QWidget* marco) {
    TablaDireccion tabla{Campos, Listas,
                         [](const char16_t* campo) { return QString::fromUtf16(campo); }};
    tabla.textoBoton = TextoBotonLista;
    tabla.provinciaVaciaMunicipio = true;
    direccion_ = new PanelDireccion({estado_, pantallas_, guardia_}, tabla, bloque_, this, marco);
    direccion_->alModificar = [this] { anotarDireccion(); };
    direccion_->alRefrescar = [this] { refrescar(); };
}

QWidget* frmDatosParticipe::crearParticipacion() {
    auto* marco = Panel(this);
    auto* caja = new QVBoxLayout(marco);
    caja->setSpacing(EntreFilas);
    txtPorcentaje_ = new CajaNum(QStringLiteral("txtPorcentaje"), EnterosPorcentaje,
                                 QStringLiteral("##0.00"), marco);
    txtPorcentaje_->setFixedWidth(AnchoDe(txtPorcentaje_, AnchoPorcentaje));
    auto* etiqueta = etiquetaDe(RotuloPorcentaje, marco);
    etiqueta->setBuddy(txtPorcentaje_);
    auto* linea = new QHBoxLayout;
    linea->setSpacing(JuntoAlCampo);
    linea->addWidget(etiqueta);
    linea->addWidget(txtPorcentaje_);
    linea->addStretch(1);
    caja->addLayout(linea);
    auto* bloques = new QHBoxLayout;
    bloques->setSpacing(EntreBloques);
    for (const auto& bloque : Bloques) bloques->addLayout(crearRegimenes(bloque, marco));
    bloques->addStretch(1);
    caja->addLayout(bloques);
    return marco;
}

QGridLayout* frmDatosParticipe::crearRegimenes(const BloqueRegimenes& bloque, QWidget* marco) {
    auto* rejilla = new QGridLayout;
    rejilla->setHorizontalSpacing(EntreColumnas);
    rejilla->setVerticalSpacing(EntreFilas);
    int linea = 0, columna = 0;
    for (const auto& cabeza : bloque.columnas)
        rejilla->addWidget(etiquetaDe(cabeza, marco), linea, ++columna);
    for (const auto& regimen : bloque.filas) {
        Fila fila{&regimen, &bloque, etiquetaDe(regimen.etiqueta, marco), {}};
        rejilla->addWidget(fila.etiqueta, ++linea, columna = 0);
        for (std::size_t i = 0; i < fila.casillas.size(); ++i) {
            fila.casillas[i] =
                new CasillaRespuesta(QString::fromUtf16(regimen.casillas[i].nombre), marco);
            rejilla->addWidget(fila.casillas[i], linea, ++columna);
        }
        fila.etiqueta->setBuddy(fila.casillas[0]);
        filas_.push_back(fila);
    }
    return rejilla;
}

void frmDatosParticipe::Anadir_captions() {
    setWindowTitle(Texto(TituloPantalla));
    for (const auto& [etiqueta, id] : etiquetas_) etiqueta->setText(Texto(id));
    txtDNI_->setAccessibleName(Texto(RotuloDNI.texto));
    txtNombre_->setAccessibleName(Texto(RotuloNombre.texto));
    txtPorcentaje_->setAccessibleName(Texto(RotuloPorcentaje.texto));
    direccion_->Anadir_captions({});
    for (const auto& fila : filas_) rotularFila(fila);
    botones_->Anadir_captions(estado_);
    ponerAyudaVolver();
}

// Beside a box stands nothing but the arrow: its row and its column say what it answers.
void frmDatosParticipe::rotularFila(const Fila& fila) {
    for (std::size_t i = 0; i < fila.casillas.size(); ++i) {
        fila.casillas[i]->PonerRotulos({}, Texto(Flecha));
        fila.casillas[i]->setAccessibleName(Texto(fila.regimen->etiqueta.texto) +
                                            QStringLiteral(": ") +
                                            Texto(fila.bloque->columnas[i].texto));
    }
}

void frmDatosParticipe::CargarListas() {
    const auto& catalogo = estado_.catalogo;
    direccion_->CargarListas(
        {catalogo.ListaSiglas(), catalogo.ListaProvincias(), catalogo.ListaMunicipios()});
}

void frmDatosParticipe::Cargar() {
    Anadir_captions();
    CargarListas();
    refrescar();
}

}  // namespace padral
