#include "core/help/search_panel.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "core/help/help_texts.h"
#include "core/help/page_search.h"
#include "core/help/text_match.h"

namespace padral {

PanelBusqueda::PanelBusqueda(QWidget* padre)
    : QWidget(padre),
      rotulo_(new QLabel(this)),
      campo_(new QLineEdit(this)),
      boton_(new QPushButton(this)),
      resultado_(new QLabel(this)),
      lista_(new QListWidget(this)) {
    campo_->setObjectName(QStringLiteral("txtBuscar"));
    boton_->setObjectName(QStringLiteral("cmdBuscar"));
    resultado_->setObjectName(QStringLiteral("lblResultado"));
    lista_->setObjectName(QStringLiteral("lstResultado"));
    rotulo_->setBuddy(campo_);
    rotulo_->setWordWrap(true);
    resultado_->setWordWrap(true);
    lista_->setWordWrap(true);
    // Enter in the field asks; it must not press the button a second time.
    boton_->setAutoDefault(false);
    lista_->setAlternatingRowColors(true);
    auto* fila = new QHBoxLayout;
    fila->addWidget(resultado_, 1);
    fila->addWidget(boton_);
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(rotulo_);
    columna->addWidget(campo_);
    columna->addLayout(fila);
    columna->addWidget(lista_, 1);
    connect(campo_, &QLineEdit::returnPressed, this, &PanelBusqueda::buscar);
    connect(boton_, &QPushButton::clicked, this, &PanelBusqueda::buscar);
    const auto elegir = [this](const QListWidgetItem* cual) {
        Q_EMIT Elegida(cual->data(Qt::UserRole).toString(), palabras_);
    };
    connect(lista_, &QListWidget::itemClicked, this, elegir);
    connect(lista_, &QListWidget::itemActivated, this, elegir);
}

void PanelBusqueda::Poner(const EstadoCompartido& estado) {
    rotulo_->setText(textos_ayuda::Palabras.En(estado));
    boton_->setText(textos_ayuda::Buscar.En(estado));
    campo_->setAccessibleName(textos_ayuda::PalabrasBuscadas.En(estado));
    lista_->setAccessibleName(textos_ayuda::PaginasHalladas.En(estado));
    nada_ = textos_ayuda::NingunaPagina.En(estado);
    una_ = textos_ayuda::UnaPagina.En(estado);
    varias_ = textos_ayuda::VariasPaginas.En(estado);
}

void PanelBusqueda::PonerPaginas(const QString& carpeta, const QList<PaginaContenido>& contenido) {
    carpeta_ = carpeta;
    contenido_ = contenido;
    campo_->clear();
    lista_->clear();
    resultado_->clear();
}

void PanelBusqueda::Enfocar() {
    campo_->setFocus(Qt::ShortcutFocusReason);
    campo_->selectAll();
}

void PanelBusqueda::buscar() {
    palabras_ = PalabrasBuscadas(campo_->text());
    lista_->clear();
    const auto hallazgos = BuscarPaginas(carpeta_, contenido_, palabras_);
    for (const auto& cada : hallazgos) {
        auto* entrada = new QListWidgetItem(cada.titulo + u'\n' + cada.extracto, lista_);
        entrada->setData(Qt::UserRole, cada.pagina);
    }
    if (hallazgos.isEmpty()) {
        decir(nada_);
        Enfocar();
        return;
    }
    decir(hallazgos.size() == 1 ? una_ : varias_.arg(hallazgos.size()));
    lista_->setCurrentRow(0);
    lista_->setFocus(Qt::OtherFocusReason);
}

void PanelBusqueda::decir(const QString& frase) {
    resultado_->setText(frase);
    QAccessibleEvent voz(resultado_, QAccessible::Alert);
    QAccessible::updateAccessibility(&voz);
}

}  // namespace padral
