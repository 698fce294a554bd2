#include "ui/number_field.h"

#include <QDropEvent>
#include <algorithm>

#include "core/field_rules.h"

namespace padral {

namespace {

constexpr int Decimales = 2;

// The digits of the form alone: other scripts have digits, too.
bool esCifra(QChar c) { return c >= u'0' && c <= u'9'; }

}  // namespace

CajaNum::CajaNum(const QString& nombre, int enteros, const QString& formato, QWidget* padre)
    : CampoEntrada(nombre, padre), formato_(formato), enteros_(enteros) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setInputMethodHints(conDecimales() ? Qt::ImhFormattedNumbersOnly : Qt::ImhDigitsOnly);
    ponerTope(0);
    connect(this, &QLineEdit::textEdited, this,
            [this](const QString& texto) { ponerTope(texto.size()); });
}

void CajaNum::AsignarValorFormateado(const QString& valor, const QString& formato) {
    oldValue_ = ValorFormateado(valor, formato.isEmpty() ? formato_ : formato);
    ponerTope(oldValue_.size());
    if (text() == oldValue_) return;
    setText(oldValue_);
    setCursorPosition(0);
}

void CajaNum::PresentarSinCero(qint32 valor) {
    if (valor != 0) return Presentar(valor);
    oldValue_.clear();
    ponerTope(0);
    clear();
}

qint32 CajaNum::Valor() const { return ValorNumerico(text()); }

// The width limits what is typed; a larger value shows and stays whole until it is cut.
void CajaNum::ponerTope(qsizetype longitud) {
    const int ancho = enteros_ + (conDecimales() ? 1 + Decimales : 0);
    const int tope = std::max(ancho, static_cast<int>(longitud));
    if (tope == maxLength()) return;
    // Setting the width puts the cursor at the end and forgets that something was typed.
    const int cursor = cursorPosition();
    const bool escrito = isModified();
    setMaxLength(tope);
    setCursorPosition(cursor);
    setModified(escrito);
}

bool CajaNum::cabe(const QString& texto) const {
    const auto coma = texto.indexOf(u',');
    if (coma < 0) return texto.size() <= enteros_;
    return coma <= enteros_ && texto.size() - coma - 1 <= Decimales && texto.count(u',') == 1;
}

QString CajaNum::admitido(const QString& texto) const {
    if (conDecimales()) return admitidoConDecimales(texto);
    QString cifras;
    std::copy_if(texto.begin(), texto.end(), std::back_inserter(cifras), esCifra);
    return cifras;
}

// What fits depends on where it goes in: beside the selection for a drop, instead of it otherwise.
QString CajaNum::admitidoConDecimales(const QString& texto) const {
    const bool sustituye = soltado_ < 0 && hasSelectedText();
    const int desde = soltado_ >= 0 ? soltado_ : sustituye ? selectionStart() : cursorPosition();
    const QString antes = text().left(desde);
    const QString despues = text().mid(sustituye ? selectionEnd() : desde);
    QString limpio;
    for (QChar c : texto) {
        if (c == u'.') c = u',';
        if (!esCifra(c) && c != u',') continue;
        if (!cabe(antes + limpio + c + despues)) break;
        limpio += c;
    }
    return limpio;
}

void CajaNum::dropEvent(QDropEvent* evento) {
    soltado_ = cursorPositionAt(evento->position().toPoint());
    CampoEntrada::dropEvent(evento);
    soltado_ = -1;
}

}  // namespace padral
