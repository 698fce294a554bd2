#include "script.h"

#include <QFile>
#include <QRegularExpression>
#include <array>
#include <stdexcept>

namespace padral::pruebas {

namespace {

struct PalabraDeOrden {
    const char16_t* palabra;
    Paso::Orden orden;
};
/// Commands that name one or more controls.
constexpr PalabraDeOrden OrdenesSimples[] = {
    {u"tick", Paso::Marcar},  {u"untick", Paso::Desmarcar}, {u"cleared", Paso::Vacio},
    {u"press", Paso::Pulsar}, {u"tab", Paso::Pestana},      {u"select", Paso::Seleccionar},
    {u"focus", Paso::Foco},   {u"on", Paso::Activo},        {u"off", Paso::Inactivo},
};

struct PalabraDeRespuesta {
    const char16_t* palabra;
    Botones botones;
    Respuesta respuesta;
};
constexpr PalabraDeRespuesta Respuestas[] = {
    {u"ok", Botones::AceptarCancelar, Respuesta::Aceptar},
    {u"cancel", Botones::AceptarCancelar, Respuesta::Cancelar},
    {u"yes", Botones::SiNo, Respuesta::Si},
    {u"no", Botones::SiNo, Respuesta::No},
};

class LectorDeGuion {
public:
    LectorDeGuion(const QString& nombre, Guion& guion) : nombre_(nombre), guion_(guion) {}

    void Leer(const QString& texto) {
        for (QString linea : texto.split(u'\n')) {
            ++numero_;
            const auto comentario = linea.indexOf(u'#');
            if (comentario >= 0) linea.truncate(comentario);
            linea = linea.trimmed();
            if (linea.isEmpty()) continue;
            if (linea.startsWith(QStringLiteral("== ")))
                parte_ = linea.mid(3).trimmed();
            else
                leerLinea(linea);
        }
    }

private:
    [[noreturn]] void fallar(const QString& que) const {
        throw std::runtime_error(
            QStringLiteral("%1:%2: %3").arg(nombre_).arg(numero_).arg(que).toStdString());
    }

    void leerLinea(const QString& linea) {
        if (parte_.isEmpty())
            leerCabecera(linea);
        else if (parte_ == QStringLiteral("enter"))
            leerPaso(linea, guion_.entrada, Paso::Escribir);
        else if (parte_ == QStringLiteral("walk"))
            leerPaso(linea, guion_.recorrido, Paso::Muestra);
        else if (parte_ == QStringLiteral("change"))
            leerPaso(linea, guion_.cambio, Paso::Escribir);
        else if (parte_ == QStringLiteral("rows"))
            leerFila(linea, guion_.filas);
        else if (parte_ == QStringLiteral("changed rows"))
            leerFila(linea, guion_.filasCambiadas);
        else if (parte_ == QStringLiteral("pages"))
            leerHoja(linea);
        else
            fallar(QStringLiteral("no part \"%1\"").arg(parte_));
    }

    void leerCabecera(const QString& linea) {
        const QStringList palabras = linea.split(u' ', Qt::SkipEmptyParts);
        if (palabras.first() != QStringLiteral("languages")) fallar(QStringLiteral("languages?"));
        for (const QString& palabra : palabras.mid(1))
            guion_.idiomas << (palabra == QStringLiteral("eu") ? QStringLiteral("E")
                                                               : QStringLiteral("C"));
    }

    void leerPaso(const QString& linea, std::vector<Paso>& pasos, Paso::Orden asignar) {
        if (linea.startsWith(u'[') && linea.endsWith(u']'))
            return anotar(pasos, Paso::Pantalla, linea.mid(1, linea.size() - 2));
        const QString palabra = linea.section(u' ', 0, 0);
        const QString resto = linea.mid(palabra.size()).trimmed();
        if (palabra == QStringLiteral("says") || palabra == QStringLiteral("asks"))
            return leerAviso(palabra, resto, pasos);
        for (const auto& [nombre, orden] : OrdenesSimples)
            if (palabra == QStringView(nombre)) {
                for (const QString& control : resto.split(u' ', Qt::SkipEmptyParts))
                    anotar(pasos, orden, control);
                return;
            }
        const bool elegir = palabra == QStringLiteral("choose");
        leerValores(elegir ? resto : linea, [&](const QString& control, const QString& valor) {
            anotar(pasos, elegir ? Paso::Elegir : asignar, control, valor);
        });
    }

    void anotar(std::vector<Paso>& pasos, Paso::Orden orden, const QString& control,
                const QString& valor = {}) const {
        pasos.push_back({numero_, orden, control, valor, {}});
    }

    /// "says 545 / 158", "says 871 / 'Ap4- ' 75", "asks 519 / 520 ok".
    void leerAviso(const QString& palabra, const QString& resto, std::vector<Paso>& pasos) {
        static const QRegularExpression forma(
            QStringLiteral("^(.+) / (.+?)( ok| cancel| yes| no)?$"));
        const auto hallado = forma.match(resto);
        if (!hallado.hasMatch() || pasos.empty()) fallar(QStringLiteral("no message"));
        AvisoDelGuion aviso;
        aviso.texto = piezas(hallado.captured(1));
        aviso.titulo = piezas(hallado.captured(2));
        const QString respuesta = hallado.captured(3).trimmed();
        for (const auto& r : Respuestas)
            if (respuesta == QStringView(r.palabra)) {
                aviso.botones = r.botones;
                aviso.respuesta = r.respuesta;
            }
        if ((palabra == QStringLiteral("asks")) != (aviso.botones != Botones::Aceptar))
            fallar(QStringLiteral("a question has an answer, a message has none"));
        pasos.back().avisos.push_back(aviso);
    }

    static QStringList piezas(const QString& texto) {
        static const QRegularExpression pieza(QStringLiteral("'[^']*'|[^ ]+"));
        QStringList todas;
        for (auto it = pieza.globalMatch(texto); it.hasNext();) todas << it.next().captured();
        return todas;
    }

    /// "a = 1 ; b = 2".
    template <class Anotar>
    void leerValores(const QString& linea, Anotar anotarValor) const {
        for (const QString& valor : linea.split(QStringLiteral(" ; "))) {
            const auto igual = valor.indexOf(u'=');
            if (igual < 1) fallar(QStringLiteral("not understood: ") + valor);
            anotarValor(valor.left(igual).trimmed(), valor.mid(igual + 1).trimmed());
        }
    }

    void leerFila(const QString& linea, std::vector<FilaDelGuion>& filas) {
        if (!linea.contains(u'=')) {
            filas.push_back({linea, {}});
            return;
        }
        if (filas.empty()) fallar(QStringLiteral("no table yet"));
        leerValores(linea, [&](const QString& columna, const QString& valor) {
            filas.back().valores[columna] = valor;
        });
    }

    void leerHoja(const QString& linea) {
        const QStringList palabras = linea.split(u' ', Qt::SkipEmptyParts);
        if (palabras.first() == QStringLiteral("copy")) {
            guion_.copias[palabras.value(1)] = palabras.mid(2);
            return;
        }
        if (palabras.first() == QStringLiteral("page")) {
            guion_.hojas.push_back({palabras.value(1), {}});
            return;
        }
        if (guion_.hojas.empty()) fallar(QStringLiteral("no page yet"));
        auto& casillas = guion_.hojas.back().casillas;
        if (palabras.first() == QStringLiteral("marks"))
            for (const QString& casilla : palabras.mid(1)) casillas[casilla] = QStringLiteral("X");
        else
            leerValores(linea, [&](const QString& casilla, const QString& valor) {
                casillas[casilla] = valor;
            });
    }

    QString nombre_, parte_;
    Guion& guion_;
    int numero_ = 0;
};

}  // namespace

Guion LeerGuionDe(const QString& nombre, const QString& texto) {
    Guion guion;
    guion.fichero = nombre;
    LectorDeGuion(nombre, guion).Leer(texto);
    return guion;
}

Guion LeerGuion(const QString& fichero) {
    QFile entrada(fichero);
    if (!entrada.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + fichero.toStdString());
    return LeerGuionDe(fichero.section(u'/', -1), QString::fromUtf8(entrada.readAll()));
}

QString EnIdioma(const QString& valor, bool euskera) {
    static const QRegularExpression fecha(QStringLiteral("^(\\d\\d)/(\\d\\d)/(\\d{4})$"));
    const QString separador = QStringLiteral(" | ");
    if (valor.contains(separador))
        return valor.section(separador, euskera ? 1 : 0).section(separador, 0, 0);
    const auto hallada = fecha.match(valor);
    if (!euskera || !hallada.hasMatch()) return valor;
    return QStringLiteral("%1/%2/%3")
        .arg(hallada.captured(3), hallada.captured(2), hallada.captured(1));
}

}  // namespace padral::pruebas
