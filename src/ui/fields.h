#pragma once
// The entry fields that all screens share.

#include <QLabel>
#include <QLineEdit>

#include "ui/entry_field.h"

class QAbstractButton;

namespace padral {

/// A text field: upper case, only the alphabet of free texts, unless told another filter.
class CampoTexto : public CampoEntrada {
    Q_OBJECT
public:
    /// `filtro` gets a UTF-16 code and gives the code to use, 0 for none. `ancho` characters.
    CampoTexto(const QString& nombre, int ancho, int (*filtro)(int), QWidget* padre = nullptr);
    /// A text field with the filter of free texts.
    CampoTexto(const QString& nombre, int ancho, QWidget* padre = nullptr);

    /// Shows a stored value as it is, without the filter.
    void Presentar(const QString& texto);
    /// For a field that serves several values in turn; before `Presentar`.
    void PonerFiltro(int ancho, int (*filtro)(int)) {
        ancho_ = ancho;
        filtro_ = filtro;
    }

protected:
    QString admitido(const QString& texto) const override;

private:
    void ponerTope(qsizetype longitud);
    int (*filtro_)(int);
    int ancho_;
};

/// A masked date field; its text has always 10 (or 5) characters with "_" where nothing is typed.
class CampoFecha : public CampoEntrada {
    Q_OBJECT
public:
    explicit CampoFecha(const QString& nombre, QWidget* padre = nullptr);

    /// Mask of the catalogue: "#" stands for a digit. `formato` is the form told to the user.
    void PonerMascara(const QString& mascara, const QString& formato);
    /// The text with "_" at each position that is not filled.
    QString Texto() const { return displayText(); }
    void Presentar(const QString& texto);

protected:
    QString admitido(const QString& texto) const override;
};

/// No tab stop, read only, grey 0xE0E0E0; the text colour is set with it, for dark themes.
void BloquearCampo(QLineEdit* campo);
/// Tab stop, editable, the field's normal colours.
void DesbloquearCampo(QLineEdit* campo);
bool EstaBloqueado(const QLineEdit* campo);
/// The width of a field for so many characters of its font, so that it follows font and scale.
/// `muestra` stands for them all: digits, or capitals that are the widest.
int AnchoDe(const QWidget* campo, int caracteres, QChar muestra = u'0');
/// Selects the whole text.
void SeleccionarTexto(QLineEdit* campo);
/// With text: caption and shown; without: hidden, the caption stays.
void MostrarEtiqueta(QLabel* etiqueta, const QString& texto);

/// A picture that does the same as its button.
class ImagenPulsable : public QLabel {
    Q_OBJECT
public:
    /// `dibujo` names the artwork, e.g. u"accept".
    ImagenPulsable(const QString& nombre, const QString& dibujo, QWidget* padre = nullptr);

Q_SIGNALS:
    void pulsada();

protected:
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

private:
    bool pulsando_ = false;
};

/// The caption of a check box that stands beside it: a click on it is a click on the box.
class EtiquetaCasilla : public QLabel {
    Q_OBJECT
public:
    EtiquetaCasilla(const QString& nombre, QAbstractButton* casilla, QWidget* padre = nullptr);

protected:
    void mousePressEvent(QMouseEvent* evento) override;

private:
    QAbstractButton* casilla_;
};

/// A label whose text is plain.
QLabel* Etiqueta(const QString& nombre, QWidget* padre);
/// A label in bold, the heading of a panel.
QLabel* Encabezado(const QString& nombre, QWidget* padre);
/// A frame round controls that go together.
QFrame* Panel(QWidget* padre);

}  // namespace padral
