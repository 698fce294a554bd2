// The additional data of section 3: language, medium, channels, consent.

#include <QBoxLayout>
#include <QFrame>
#include <QGridLayout>

#include "sections/location/screen/frm_apartado3.h"
#include "sections/location/screen/frm_apartado3_tables.h"

namespace padral {

using namespace apartado3;

namespace {

/// The longest address that mail carries.
constexpr int AnchoDireccion = 254;
constexpr int CifrasTelefono = 9;
/// Shares of the columns, the same in each frame, so that they stand below one another.
constexpr int Columnas[] = {3, 4, 5};

ParejaCasillas* nuevaPareja(std::size_t i, QWidget* padre) {
    return new ParejaCasillas(QString::fromUtf16(Parejas[i].si), QString::fromUtf16(Parejas[i].no),
                              padre);
}

QBoxLayout* lado(const ParejaCasillas* pareja) {
    auto* fila = new QHBoxLayout;
    fila->setSpacing(14);
    fila->addWidget(pareja->Si());
    fila->addWidget(pareja->No());
    fila->addStretch(1);
    return fila;
}

QFrame* raya(QWidget* padre) {
    auto* linea = new QFrame(padre);
    linea->setFrameShape(QFrame::HLine);
    linea->setFrameShadow(QFrame::Sunken);
    return linea;
}

QGridLayout* rejillaDe(QWidget* marco) {
    auto* rejilla = new QGridLayout(marco);
    rejilla->setContentsMargins(0, 0, 0, 0);
    rejilla->setVerticalSpacing(2);
    rejilla->setHorizontalSpacing(12);
    for (int c = 0; c < 3; ++c) rejilla->setColumnStretch(c, Columnas[c]);
    return rejilla;
}

}  // namespace

QFrame* FrmApartado3::marco(const char16_t* nombre, int texto, QWidget* padre) {
    auto* cuadro = new QFrame(padre);
    cuadro->setObjectName(QString::fromUtf16(nombre));
    marcos_.emplace_back(cuadro, texto);
    auto* titulo = Encabezado(QStringLiteral("lbl") + cuadro->objectName(), cuadro);
    titulo->setWordWrap(true);
    etiquetas_.emplace_back(titulo, texto);
    return cuadro;
}

QWidget* FrmApartado3::crearAdicionales() {
    auto* todo = marco(u"fraDatosAd", 847, this);
    todo->setFrameShape(QFrame::StyledPanel);
    auto* caja = new QVBoxLayout(todo);
    caja->addWidget(todo->findChild<QLabel*>());
    caja->addWidget(raya(todo));
    caja->addWidget(crearPreferencia(u"fraPrefCom", Idioma));
    caja->addWidget(crearPreferencia(u"fraMedioCom", Medio));
    for (std::size_t i = 0; i < Canales.size(); ++i) {
        caja->addWidget(raya(todo));
        caja->addWidget(crearCanal(i));
    }
    caja->addWidget(raya(todo));
    auto* cesion = nuevaPareja(Cesion, todo);
    parejas_.push_back(cesion);
    caja->addLayout(casillaRotulada(cesion->Si(), u"lblConsentimiento", 866));
    caja->addLayout(casillaRotulada(cesion->No(), u"lblRevocacion", 867));
    caja->addStretch(1);
    return todo;
}

QWidget* FrmApartado3::crearPreferencia(const char16_t* nombre, std::size_t i) {
    auto* cuadro = marco(nombre, Parejas[i].grupo, this);
    auto* rejilla = rejillaDe(cuadro);
    parejas_.push_back(nuevaPareja(i, cuadro));
    rejilla->addWidget(cuadro->findChild<QLabel*>(), 0, 0, 1, 2);
    rejilla->addLayout(lado(parejas_.back()), 0, 2);
    return cuadro;
}

QWidget* FrmApartado3::crearCanal(std::size_t i) {
    const auto& canal = Canales[i];
    const std::size_t numero = PrimerCanal + i;
    auto* cuadro = marco(canal.marco, Parejas[numero].grupo, this);
    auto* rejilla = rejillaDe(cuadro);
    auto* pareja = nuevaPareja(numero, cuadro);
    parejas_.push_back(pareja);
    const QString nombre = QString::fromUtf16(canal.campo);
    QLineEdit* campo = nullptr;
    if (canal.numero)
        campo = numeros_[i] =
            new CajaNum(nombre, CifrasTelefono, QStringLiteral("#########"), cuadro);
    else
        campo = txtDirCorreo_ = new CampoTexto(nombre, AnchoDireccion, cuadro);
    rejilla->addWidget(cuadro->findChild<QLabel*>(), 0, 0, 2, 1, Qt::AlignTop);
    rejilla->addWidget(etiquetaDe(canal.pregunta, canal.textoPregunta, pareja->Si()), 0, 1,
                       Qt::AlignBottom);
    rejilla->addWidget(etiquetaDe(canal.etiqueta, canal.textoEtiqueta, campo), 0, 2,
                       Qt::AlignBottom);
    rejilla->addLayout(lado(pareja), 1, 1);
    rejilla->addWidget(campo, 1, 2);
    return cuadro;
}

}  // namespace padral
