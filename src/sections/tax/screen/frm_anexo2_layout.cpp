// How Annex II is laid out: who declares and who represents him on the left, the questions on the
// right. Controls are made in reading order, which Tab follows.

#include <QBoxLayout>
#include <QGroupBox>

#include "sections/tax/screen/frm_anexo2.h"
#include "sections/tax/screen/frm_anexo2_tables.h"
#include "ui/fields.h"
#include "ui/list_button.h"
#include "ui/number_field.h"
#include "ui/pick_list.h"

namespace padral {

using namespace anexo2;

namespace {

constexpr int NumeroAnexoII = 10;

constexpr int TituloPantalla = 705;
constexpr int EntreFilas = 8, EntreColumnas = 12, EntreMitades = 14;
constexpr int DentroDelGrupo = 4, BajoElRotulo = 1, TrasElTitulo = 4;
/// A text shows at least this many characters, however narrow the window.
constexpr int AnchoMinimo = 12;
/// Up to here a text keeps its width; longer ones share what the window leaves.
constexpr int AnchoFijo = 9;

QHBoxLayout* nuevaLinea(QVBoxLayout* caja) {
    auto* linea = new QHBoxLayout;
    linea->setSpacing(EntreColumnas);
    caja->addLayout(linea);
    return linea;
}

}  // namespace

frmAnexoII::frmAnexoII(const Contexto& contexto, cDeclaraciones& declaracion)
    : PantallaApartado(QStringLiteral("frmAnexoII"), contexto, declaracion, NumeroAnexoII),
      anexo_(declaracion.anexoII) {
    auto* todo = new QVBoxLayout(this);
    auto* titulo = Encabezado(QStringLiteral("lblTituloPantalla"), this);
    titulo->setWordWrap(true);
    etiquetas_.emplace_back(titulo, TituloPantalla);
    todo->addWidget(titulo);
    todo->addSpacing(TrasElTitulo);
    auto* izquierda = new QVBoxLayout;
    izquierda->setSpacing(EntreFilas);
    izquierda->addWidget(crearMarco(Domicilio));
    auto* representante = crearMarco(Representante);
    crearCodigos(representante);
    izquierda->addWidget(representante);
    izquierda->addStretch(1);
    auto* mitades = new QHBoxLayout;
    mitades->setSpacing(EntreMitades);
    mitades->addLayout(izquierda, 1);
    mitades->addWidget(crearPreguntas(), 1);
    todo->addLayout(mitades);
    todo->addStretch(1);
    todo->addWidget(crearBotones(BotonesAlPie));
    conectarCampos();
    conectarListas();
    conectarCasillas();
}

QLabel* frmAnexoII::crearEtiqueta(const Rotulo& rotulo, QWidget* padre) {
    auto* etiqueta = Etiqueta(QString::fromUtf16(rotulo.nombre), padre);
    etiquetas_.emplace_back(etiqueta, rotulo.texto);
    return etiqueta;
}

/// The caption of a field; the field goes below it.
QVBoxLayout* frmAnexoII::bajoRotulo(const Rotulo& rotulo, QWidget* campo) {
    auto* etiqueta = crearEtiqueta(rotulo, campo->parentWidget());
    etiqueta->setBuddy(campo);
    auto* caja = new QVBoxLayout;
    caja->setSpacing(BajoElRotulo);
    caja->addWidget(etiqueta);
    return caja;
}

CampoTexto* frmAnexoII::crearCampo(const Campo& fila, QWidget* padre) {
    auto* campo = new CampoTexto(QString::fromUtf16(fila.control), fila.ancho, padre);
    const bool fijo = fila.ancho <= AnchoFijo;
    // What keeps its width is an identifier, where capital letters may stand.
    campo->setMinimumWidth(fijo ? AnchoDe(campo, fila.ancho, u'M') : AnchoDe(campo, AnchoMinimo));
    if (fijo) campo->setMaximumWidth(campo->minimumWidth());
    textos_.emplace_back(campo, fila.propiedad);
    return campo;
}

QGroupBox* frmAnexoII::crearMarco(const Marco& marco) {
    auto* grupo = new QGroupBox(this);
    grupo->setObjectName(QString::fromUtf16(marco.titulo.nombre));
    marcos_.emplace_back(grupo, marco.titulo.texto);
    auto* caja = new QVBoxLayout(grupo);
    caja->setSpacing(EntreFilas);
    std::vector<QHBoxLayout*> lineas;
    for (const auto& fila : marco.campos) {
        if (fila.linea == lineas.size()) lineas.push_back(nuevaLinea(caja));
        auto* campo = crearCampo(fila, grupo);
        if (fila.propiedad == &DatosAnexoII::NIFRepresentante) txtNIF_ = campo;
        auto* columna = bajoRotulo(fila.etiqueta, campo);
        columna->addWidget(campo);
        lineas.back()->addLayout(columna, fila.ancho <= AnchoFijo ? 0 : fila.ancho);
        nombrados_.push_back({campo, marco.titulo.texto, fila.etiqueta.texto});
    }
    return grupo;
}

/// Province and municipality, the last line of their frame.
void frmAnexoII::crearCodigos(QGroupBox* grupo) {
    auto* linea = nuevaLinea(static_cast<QVBoxLayout*>(grupo->layout()));
    for (std::size_t i = 0; i < NumCodigos; ++i)
        linea->addLayout(crearCodigo(i, grupo), Codigos[i].nombre.ancho);
    BloquearCampo(nombres_[n(ListaAnexoII::Provincias)]);
}

/// A code, the button of its list and its name, in one line below the caption.
QVBoxLayout* frmAnexoII::crearCodigo(std::size_t i, QWidget* padre) {
    const Codigo& codigo = Codigos[i];
    codigos_[i] = new CajaNum(QString::fromUtf16(codigo.control), codigo.cifras,
                              QString::fromUtf16(codigo.formato), padre);
    codigos_[i]->setFixedWidth(AnchoDe(codigos_[i], codigo.cifras + 1));
    auto* boton = botonesLista_[i] = new BotonLista(QString::fromUtf16(codigo.boton), padre);
    listas_[i] = new ListaEleccion(QString::fromUtf16(codigo.lista), this);
    nombres_[i] = crearCampo(codigo.nombre, padre);
    auto* fila = new QHBoxLayout;
    fila->setSpacing(DentroDelGrupo);
    for (QWidget* w : {static_cast<QWidget*>(codigos_[i]), static_cast<QWidget*>(boton)})
        fila->addWidget(w);
    fila->addWidget(nombres_[i], 1);
    auto* columna = bajoRotulo(codigo.etiqueta, codigos_[i]);
    columna->addLayout(fila);
    for (QLineEdit* campo :
         {static_cast<QLineEdit*>(codigos_[i]), static_cast<QLineEdit*>(nombres_[i])})
        nombrados_.push_back({campo, Representante.titulo.texto, codigo.etiqueta.texto});
    return columna;
}

}  // namespace padral
