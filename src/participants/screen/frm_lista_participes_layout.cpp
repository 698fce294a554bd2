// How the participants list is laid out, and its captions.

#include <QHBoxLayout>
#include <algorithm>

#include "participants/screen/frm_lista_participes.h"
#include "ui/list/button_bar.h"
#include "ui/section_buttons.h"

namespace padral {

namespace {

enum : int {
    TextoTodos = 558,
    TextoBusqueda = 560,
    SinDatos = 571,
    Titulo = 608,
    AyudaBuscar = 609,
    AyudaTodos = 610,
};

// A criterion stands in the header behind the caption.
constexpr ColumnaLista ColumnasRejilla[] = {
    {355, 1300, u"NIF: W00000000W", nullptr},
    {356, 3050, u"NNNNNNNNNNNNNNNNNNNNNNNNNN", u"NNNNNNNN"},
    {110, 2400, u"NNNNNNNNNNNNNNNNNNNN", u""},
    {103, 1700, u"NNNNNNNNNNNNNN", u""},
    {616, 900, u"100,00", nullptr},
};

constexpr BotonApartado Salidas[] = {
    {u"cmdInicio", u"PicInicio", u"home", 670, 671},
    {u"cmdAnterior", u"PicAnterior", u"back", 10, 615},
    {u"cmdSiguiente", u"PicSiguiente", u"next", 12, 13},
};
constexpr BotonApartado Acciones[] = {
    {u"CmdNuevo", u"PicNuevo", u"new", 563, 611},
    {u"CmdVerParticipe", u"PicVer", u"open", 612, 613},
    {u"CmdEliminar", u"PicBorrar", u"delete", 565, 614},
};

}  // namespace

frmListaParticipes::frmListaParticipes(const Contexto& contexto, cDeclaraciones& declaracion)
    : PantallaConLista(QStringLiteral("frmListaParticipes"), contexto,
                       QStringLiteral("flxParticipes"), ColumnasRejilla),
      declaracion_(declaracion),
      lista_(declaracion.parLista),
      modelo_(new ModeloParticipes(lista_, this)) {
    montar(modelo_, crearBotones());
    conectarBotones();
}

QWidget* frmListaParticipes::crearBotones() {
    auto* barra = new BarraBotones(this);
    const auto grupo = [barra](QHBoxLayout* sitio, std::span<const BotonApartado> tabla) {
        auto* botones = new BotonesApartado(tabla, tabla.size(), barra);
        sitio->addWidget(botones);
        return botones;
    };
    const auto suelto = [barra](const QString& nombre) {
        auto* boton = new QPushButton(barra);
        boton->setObjectName(nombre);
        barra->Primero()->addWidget(boton);
        return boton;
    };
    salidas_ = grupo(barra->Primero(), Salidas);
    barra->Primero()->addStretch(1);
    cmdBuscar_ = suelto(QStringLiteral("cmdBuscar"));
    cmdTodos_ = suelto(QStringLiteral("cmdTodos"));
    barra->Segundo()->addStretch(1);
    acciones_ = grupo(barra->Segundo(), Acciones);
    barra->RecorrerConTeclas();
    return barra;
}

void frmListaParticipes::Anadir_captions() {
    ponerTitulos(Texto(Titulo));
    for (auto* grupo : {salidas_, acciones_}) grupo->Anadir_captions(estado_);
    for (auto* boton : findChildren<QPushButton*>()) darHolgura(boton);
    rotular(cmdBuscar_, TextoBusqueda, AyudaBuscar);
    rotular(cmdTodos_, TextoTodos, AyudaTodos);
    lblResultado_->setText(Texto(SinDatos));
}

}  // namespace padral
