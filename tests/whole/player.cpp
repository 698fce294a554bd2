#include "player.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTableView>

#include "differences.h"

namespace padral::pruebas {

namespace {

const QString Marcada = QStringLiteral("X");
const QString General = QStringLiteral("FrmDatGen");
const QString ListaDeParticipes = QStringLiteral("frmListaParticipes");
const QString UnParticipe = QStringLiteral("frmDatosParticipe");

/// "frmDatosParticipe 12345678Z": the form of a header.
QString Formulario(const QString& cabecera) { return cabecera.section(u' ', 0, 0); }

/// A screen with two editions holds the same controls in both.
QString SinEdicion(QString cabecera) { return cabecera.remove(QStringLiteral("_2015")); }

/// The digits of a date as they are typed, or the text as it is.
QString Tecleado(const QString& valor, bool euskera) {
    static const QRegularExpression fecha(QStringLiteral("^\\d\\d/\\d\\d(/\\d{4})?$"));
    const QString texto = EnIdioma(valor, euskera);
    return fecha.match(valor).hasMatch() ? QString(texto).remove(u'/') : texto;
}

bool EsVacio(const QString& texto) {
    return QString(texto).remove(u'_').remove(u'/').trimmed().isEmpty();
}

}  // namespace

bool Interprete::conGuia(const Guion& guion, const std::function<void()>& hacer) {
    try {
        hacer();
        return true;
    } catch (const GuiaPerdida& e) {
        ADD_FAILURE() << guion.fichero.toStdString() << ":" << linea_ << ": " << e.what();
        return false;
    }
}

bool Interprete::Jugar(const Guion& guion, const std::vector<Paso>& pasos) {
    return conGuia(guion, [&] {
        for (const Paso& paso : pasos) {
            SCOPED_TRACE(QStringLiteral("%1:%2").arg(guion.fichero).arg(paso.linea).toStdString());
            linea_ = paso.linea;
            for (const auto& aviso : paso.avisos) esperar(aviso);
            jugar(paso);
            avisos_.Verificar();
        }
    });
}

void Interprete::jugar(const Paso& paso) {
    switch (paso.orden) {
        case Paso::Pantalla:
            return abrir(paso.control);
        case Paso::Escribir:
            return escribir(paso);
        case Paso::Elegir:
            return elegir(paso);
        case Paso::Marcar:
            return marcar(paso.control, true);
        case Paso::Desmarcar:
            return marcar(paso.control, false);
        case Paso::Pulsar:
            return guia_.Pulsar(paso.control);
        case Paso::Seleccionar:
            return seleccionar(paso.control);
        case Paso::Pestana:
            return guia_.ElegirPestana(QStringLiteral("Pestaña"), paso.control.toInt() - 1);
        case Paso::Vacio: {
            entrado_[SinEdicion(cabecera_)].remove(paso.control);
            const auto* casilla = qobject_cast<QAbstractButton*>(guia_.Control(paso.control));
            EXPECT_FALSE(casilla && casilla->isVisible() && casilla->isChecked())
                << paso.control.toStdString();
            return;
        }
        case Paso::Foco: {
            const QWidget* foco = QApplication::focusWidget();
            EXPECT_EQ(foco ? foco->objectName() : QString(), paso.control);
            return;
        }
        case Paso::Activo:
        case Paso::Inactivo:
            EXPECT_EQ(guia_.Control(paso.control)->isEnabled(), paso.orden == Paso::Activo)
                << paso.control.toStdString();
            return;
        case Paso::Muestra:
            break;
    }
    throw GuiaPerdida("only the walk tells what is shown");
}

void Interprete::abrir(const QString& cabecera) {
    cabecera_ = cabecera;
    pantalla(cabecera);
    entrado_[SinEdicion(cabecera)];
}

QWidget* Interprete::pantalla(const QString& cabecera) const {
    if (auto* abierta = programa_.ventana().findChild<QWidget*>(Formulario(cabecera)))
        return abierta;
    throw GuiaPerdida("not open: " + cabecera.toStdString());
}

void Interprete::escribir(const Paso& paso) {
    guia_.Escribir(paso.control, Tecleado(paso.valor, EsEuskera()));
    // What the program refuses stays out of the record.
    if (paso.avisos.empty())
        entrado_[SinEdicion(cabecera_)][paso.control] = EnIdioma(paso.valor, EsEuskera()).toUpper();
}

void Interprete::elegir(const Paso& paso) {
    const QString texto = EnIdioma(paso.valor, EsEuskera());
    guia_.ElegirEnCombo(paso.control, texto);
    entrado_[SinEdicion(cabecera_)][paso.control] = texto;
}

void Interprete::marcar(const QString& control, bool marcada) {
    guia_.Pulsar(control);
    const auto* casilla = guia_.Busca<QAbstractButton>(control);
    EXPECT_EQ(casilla->isChecked(), marcada) << control.toStdString();
    if (marcada)
        entrado_[SinEdicion(cabecera_)][control] = Marcada;
    else
        entrado_[SinEdicion(cabecera_)].remove(control);
}

void Interprete::seleccionar(const QString& nif) {
    const QString nombre = QStringLiteral("flxParticipes");
    const auto* modelo = guia_.Busca<QTableView>(nombre)->model();
    for (int fila = 0; fila < modelo->rowCount(); ++fila)
        if (modelo->index(fila, 1).data().toString() == nif)
            return guia_.PulsarCelda(nombre, fila, 1);
    throw GuiaPerdida("no row " + nif.toStdString());
}

void Interprete::esperar(const AvisoDelGuion& aviso) {
    const bool pregunta = aviso.botones != Botones::Aceptar;
    avisos_.Espera({textoDe(aviso.texto), textoDe(aviso.titulo),
                    pregunta ? Icono::Exclamacion : Icono::Informacion, aviso.botones},
                   aviso.respuesta);
}

QString Interprete::textoDe(const QStringList& partes) const {
    QString texto;
    for (const QString& parte : partes) {
        if (parte.startsWith(u'@'))
            texto += programa_.estado().fecha.LongToString(parte.mid(1).toInt());
        else if (parte.startsWith(u'\''))
            texto += parte.mid(1, parte.size() - 2);
        else
            texto += programa_.estado().Texto(parte.toInt());
    }
    return texto;
}

bool Interprete::Recorrer(const Guion& guion) {
    return conGuia(guion, [&] {
        for (std::size_t i = 0; i < guion.recorrido.size();) {
            const QString cabecera = guion.recorrido[i].control;
            linea_ = guion.recorrido[i].linea;
            SCOPED_TRACE(guion.fichero.toStdString() + " " + cabecera.toStdString());
            std::vector<Paso> correcciones;
            for (++i; i < guion.recorrido.size() && guion.recorrido[i].orden != Paso::Pantalla; ++i)
                correcciones.push_back(guion.recorrido[i]);
            if (cabecera != General) pasarA(cabecera);
            EXPECT_EQ(Diferencias(esperado(cabecera, correcciones), visible(cabecera)),
                      QStringList());
            if (Formulario(cabecera) == UnParticipe) guia_.Pulsar(QStringLiteral("cmdVolver"));
        }
        if (!programa_.ventana().findChild<QWidget*>(General))
            guia_.Pulsar(QStringLiteral("cmdInicio"));
        EXPECT_TRUE(guia_.Control(QStringLiteral("cmdAnterior"))->isEnabled())
            << "looking has changed something";
    });
}

/// From the general data the first section opens by its button, each other one from the one before.
void Interprete::pasarA(const QString& cabecera) {
    if (Formulario(cabecera) == UnParticipe) {
        seleccionar(cabecera.section(u' ', 1));
        guia_.Pulsar(QStringLiteral("CmdVerParticipe"));
    } else if (programa_.ventana().findChild<QWidget*>(General)) {
        const QString numero = cabecera.mid(QStringLiteral("FrmApartado").size(), 1);
        guia_.Pulsar(cabecera == ListaDeParticipes ? QStringLiteral("cmdAnexo")
                     : cabecera == QStringLiteral("frmAnexoII")
                         ? QStringLiteral("cmdAnexoII")
                         : QStringLiteral("cmdApartado") + numero);
    } else {
        const bool segundo =
            programa_.ventana().findChild<QWidget*>(QStringLiteral("FrmApartado2"));
        guia_.Pulsar(segundo ? QStringLiteral("cmdApartadoSiguiente")
                             : QStringLiteral("cmdSiguiente"));
    }
    pantalla(cabecera);
}

Mostrado Interprete::esperado(const QString& cabecera,
                              const std::vector<Paso>& correcciones) const {
    Mostrado todo = entrado_.value(SinEdicion(cabecera));
    for (const Paso& paso : correcciones) {
        if (paso.orden == Paso::Marcar)
            todo[paso.control] = Marcada;
        else if (paso.orden == Paso::Vacio)
            todo.remove(paso.control);
        else
            todo[paso.control] = EnIdioma(paso.valor, EsEuskera());
    }
    todo.removeIf([](const auto& control) { return EsVacio(control.value()); });
    return todo;
}

Mostrado Interprete::visible(const QString& cabecera) {
    Mostrado mostrado;
    if (cabecera == General)
        for (const int pestana : {1, 0}) {
            guia_.ElegirPestana(QStringLiteral("Pestaña"), pestana);
            leerControles(pantalla(cabecera), mostrado);
        }
    else
        leerControles(pantalla(cabecera), mostrado);
    return mostrado;
}

void Interprete::leerControles(QWidget* pantalla, Mostrado& mostrado) const {
    for (const QWidget* control : pantalla->findChildren<QWidget*>()) {
        const QString nombre = control->objectName();
        if (nombre.isEmpty() || nombre.startsWith(QStringLiteral("qt_"))) continue;
        if (!control->isVisibleTo(pantalla)) continue;
        QString texto;
        if (const auto* campo = qobject_cast<const QLineEdit*>(control))
            texto = campo->displayText();
        else if (const auto* combo = qobject_cast<const QComboBox*>(control))
            texto = combo->currentText();
        else if (control->inherits("QCheckBox") || control->inherits("QRadioButton"))
            texto = static_cast<const QAbstractButton*>(control)->isChecked() ? Marcada : QString();
        else if (const auto* tabla = qobject_cast<const QTableView*>(control))
            leerLista(*tabla->model(), mostrado);
        if (!EsVacio(texto)) mostrado[nombre] = texto;
    }
}

/// "row1": the columns of the first row.
void Interprete::leerLista(const QAbstractItemModel& modelo, Mostrado& mostrado) {
    for (int fila = 0; fila < modelo.rowCount(); ++fila) {
        QStringList columnas;
        for (int columna = 1; columna < modelo.columnCount(); ++columna)
            columnas << modelo.index(fila, columna).data().toString().trimmed();
        if (columnas.join(QString()).isEmpty()) continue;
        mostrado[QStringLiteral("row%1").arg(fila + 1)] = columnas.join(QStringLiteral(" / "));
    }
}

}  // namespace padral::pruebas
