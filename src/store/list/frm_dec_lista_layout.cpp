// How the declarations list is laid out, and its captions.

#include <QHBoxLayout>
#include <algorithm>

#include "store/list/frm_dec_lista.h"
#include "ui/list/button_bar.h"

namespace padral {

namespace {

enum : int {
    TituloAbrir = 556,
    TituloEliminar = 593,
};

// Where room is scarce name, type and sections give way: of them a part still tells something.
constexpr ColumnaLista Columnas[] = {
    {355, 1000, u"W00000000W", nullptr},
    {356, 3050, u"NNNNNNNNNNNNNNNNNNNNNNNNNN", u"NNNNNNNN"},
    {577, 750, u"WWW0000000", nullptr},
    {578, 1050, u"00/00/0000", nullptr},
    {579, 2300, u"", u""},
    {439, 1000, u"2,3,4,5,6,7,AI,AII", u""},
};
constexpr std::size_t ColTipo = 5;
/// Texts that column 5 can show.
constexpr int TextosTipo[] = {582, 583, 584, 585, 586, 587, 402, 588, 589, 590};

}  // namespace

FrmDecLista::FrmDecLista(const Contexto& contexto, EstadoDeclaracion& declaracion, cDecLista& lista)
    : PantallaConLista(QStringLiteral("FrmDecLista"), contexto, QStringLiteral("flxDeclaraciones"),
                       Columnas),
      declaracion_(declaracion),
      lista_(lista),
      modelo_(new ModeloDeclaraciones(lista, this)) {
    montar(modelo_, crearBotones());
    conectarBotones();
}

QWidget* FrmDecLista::crearBotones() {
    auto* barra = new BarraBotones(this);
    const auto poner = [&](QHBoxLayout* grupo, const char16_t* nombre) {
        auto* boton = new QPushButton(barra);
        boton->setObjectName(QString::fromUtf16(nombre));
        grupo->addWidget(boton);
        return boton;
    };
    auto *primero = barra->Primero(), *segundo = barra->Segundo();
    cmdAnterior_ = poner(primero, u"cmdAnterior");
    primero->addStretch(1);
    cmdBuscar_ = poner(primero, u"cmdBuscar");
    cmdTodos_ = poner(primero, u"cmdTodos");
    segundo->addStretch(1);
    CmdNuevo_ = poner(segundo, u"CmdNuevo");
    CmdCopiarDeclaracion_ = poner(segundo, u"CmdCopiarDeclaracion");
    cmdVerDeclaracion_ = poner(segundo, u"cmdVerDeclaracion");
    CmdEliminar_ = poner(segundo, u"CmdEliminar");
    return barra;
}

void FrmDecLista::Anadir_captions() {
    ponerTitulos(Texto(lista_.ENTRADA == QStringLiteral("E") ? TituloEliminar : TituloAbrir));
    struct Boton {
        QPushButton* boton;
        int caption, ayuda;
    };
    const Boton botones[] = {{cmdVerDeclaracion_, 562, 567}, {CmdNuevo_, 563, 564},
                             {CmdEliminar_, 565, 566},       {CmdCopiarDeclaracion_, 568, 569},
                             {cmdTodos_, 558, 559},          {cmdAnterior_, 408, 557}};
    for (const auto& [boton, caption, ayuda] : botones) rotular(boton, caption, ayuda);
}

std::pair<RejillaLista::Anchos, RejillaLista::Anchos> FrmDecLista::minimos() const {
    auto ambos = PantallaConLista::minimos();
    int& tipo = ambos.first[ColTipo];
    for (const int id : TextosTipo) tipo = std::max(tipo, rejilla_->AnchoTexto(Texto(id)));
    return ambos;
}

}  // namespace padral
