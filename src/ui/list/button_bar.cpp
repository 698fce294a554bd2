#include "ui/list/button_bar.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <algorithm>

#include "ui/button_keys.h"

namespace padral {

namespace {

constexpr int EntreGrupos = 24;
constexpr int SeparacionBotones = 6;

}  // namespace

BarraBotones::BarraBotones(QWidget* padre)
    : QWidget(padre),
      todo_(new QBoxLayout(QBoxLayout::LeftToRight, this)),
      primero_(new QHBoxLayout),
      segundo_(new QHBoxLayout) {
    todo_->setContentsMargins(0, 0, 0, 0);
    todo_->setSpacing(EntreGrupos);
    for (auto* grupo : {primero_, segundo_}) grupo->setSpacing(SeparacionBotones);
    todo_->addLayout(primero_, 1);
    todo_->addLayout(segundo_);
}

QSize BarraBotones::minimumSizeHint() const {
    return {std::max(primero_->minimumSize().width(), segundo_->minimumSize().width()),
            todo_->minimumSize().height()};
}

void BarraBotones::RecorrerConTeclas() {
    for (auto* boton : findChildren<QPushButton*>()) {
        boton->installEventFilter(this);
        recorrido_.push_back(boton);
    }
}

bool BarraBotones::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress) return QWidget::eventFilter(objeto, evento);
    const auto este = std::find(recorrido_.begin(), recorrido_.end(), objeto);
    return este != recorrido_.end() &&
           TeclaEntreBotones(recorrido_, *este, *static_cast<QKeyEvent*>(evento));
}

bool BarraBotones::event(QEvent* evento) {
    const bool vale = QWidget::event(evento);
    if (evento->type() == QEvent::Resize || evento->type() == QEvent::LayoutRequest) repartir();
    return vale;
}

void BarraBotones::repartir() {
    const int linea = primero_->sizeHint().width() + EntreGrupos + segundo_->sizeHint().width();
    const auto sentido = width() < linea ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    if (todo_->direction() == sentido) return;
    todo_->setDirection(sentido);
    todo_->setSpacing(sentido == QBoxLayout::LeftToRight ? EntreGrupos : SeparacionBotones);
    updateGeometry();
}

}  // namespace padral
