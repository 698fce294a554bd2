#include "printed_boxes.h"

#include <cmath>
#include <span>

#include "printed_boxes_map.h"

namespace padral::pruebas {

namespace {

/// Some values begin at the left edge of the paper, the others 0.1 mm right of it.
constexpr float BordeIzquierdo = 0.1F, ToleranciaX = 0.15F, ToleranciaY = 0.05F;
/// A text at a point begins 0.35 of its height above it.
constexpr float Subida = 0.35F;

struct Casilla {
    QString nombre;
    float x, y;
    CasillaDelMapa::Lugar lugar;
};

class Mapa {
public:
    void Bloque(float y, std::span<const CasillaDelMapa> casillas, const QString& prefijo = {}) {
        for (const auto& c : casillas)
            casillas_.push_back(
                {prefijo + QString::fromUtf16(c.nombre), BordeIzquierdo + c.x, y + c.y, c.lugar});
    }
    void Preguntas(float y) {
        for (const auto& p : PreguntasDelMapa) {
            const QString numero = QString::fromUtf16(p.numero);
            casillas_.push_back({numero + u'S', BordeIzquierdo + 176, y + p.y, {}});
            casillas_.push_back({numero + u'N', BordeIzquierdo + 187, y + p.y, {}});
        }
    }
    void Estados(float y) {
        for (int fila = 0; fila < 27; ++fila)
            for (const auto& columna : ColumnasDelMapa)
                casillas_.push_back(
                    {QString::fromUtf16(columna.nombre) + u'.' + QString::number(fila + 1),
                     BordeIzquierdo + columna.x,
                     y + columna.y + 4 * static_cast<float>(fila),
                     {}});
    }
    QString Donde(const test::Operacion& texto) const {
        const auto& e = texto.estado;
        const float ancho = test::AnchoFijo(texto.texto, e.cuerpo, e.negrita, e.cursiva);
        for (const auto& c : casillas_) {
            const bool enPunto = c.lugar == CasillaDelMapa::EnPunto;
            const float x = texto.desde.x + (enPunto                                 ? 0
                                             : c.lugar == CasillaDelMapa::HastaPunto ? ancho
                                                                                     : ancho / 2);
            const float y = texto.desde.y + (enPunto ? Subida * test::AltoLetra * e.cuerpo : 0);
            if (std::abs(x - c.x) < ToleranciaX && std::abs(y - c.y) < ToleranciaY) return c.nombre;
        }
        return {};
    }

private:
    std::vector<Casilla> casillas_;
};

void PonerHojas1y2(Mapa& mapa, const QString& clase) {
    if (clase == QStringLiteral("1")) {
        mapa.Bloque(43.5F, IdentificacionDelMapa);
        mapa.Bloque(65.5F, CausaDelMapa);
        mapa.Bloque(125.5F, SolicitudDelMapa);
        mapa.Bloque(135.5F, ModificacionDelMapa);
        mapa.Bloque(187.5F, ObligadoDelMapa);
        return;
    }
    mapa.Bloque(35.5F, IdentificacionDelMapa);
    mapa.Bloque(48.5F, FiscalDelMapa);
    mapa.Bloque(88.5F, SocialDelMapa);
    mapa.Bloque(120.5F, ActividadDelMapa);
    mapa.Bloque(152.5F, NotificacionDelMapa);
    mapa.Bloque(184.5F, Apartado3DelMapa);
}

void PonerHojas3y4(Mapa& mapa, const QString& clase) {
    if (clase == QStringLiteral("3")) {
        mapa.Bloque(4, TiraDelMapa);
        mapa.Bloque(25, Apartado4DelMapa);
        mapa.Preguntas(118);
        return;
    }
    mapa.Bloque(37, IdentificacionDelMapa);
    mapa.Bloque(52, CeseDelMapa);
    mapa.Estados(70);
    mapa.Bloque(70, Apartado7DelMapa);
}

void PonerAnexos(Mapa& mapa, const QString& clase) {
    if (clase == QStringLiteral("I")) {
        mapa.Bloque(37, IdentificacionDeAnexo);
        for (int fila = 0; fila < 5; ++fila)
            mapa.Bloque(55 + 46 * static_cast<float>(fila), FilaDeAnexoI,
                        QStringLiteral("r%1.").arg(fila + 1));
        return;
    }
    mapa.Bloque(35, IdentificacionDeAnexo);
    mapa.Bloque(53, ExtranjeroDelMapa);
    mapa.Bloque(122, RepresentanteDelMapa);
    mapa.Bloque(151, ObligacionesDelMapa);
    mapa.Bloque(206, OpcionesDelMapa);
}

Mapa MapaDe(const QString& clase) {
    Mapa mapa;
    if (clase.startsWith(u'I'))
        PonerAnexos(mapa, clase);
    else if (clase < QStringLiteral("3"))
        PonerHojas1y2(mapa, clase);
    else
        PonerHojas3y4(mapa, clase);
    return mapa;
}

}  // namespace

HojaImpresa LeerHoja(const test::Documento& copia, int pagina, const QString& clase) {
    const Mapa mapa = MapaDe(clase);
    HojaImpresa hoja;
    for (const auto& operacion : copia.operaciones) {
        if (operacion.pagina != pagina) continue;
        if (operacion.tipo == test::Operacion::Imagen) hoja.imagenes << operacion.texto;
        if (operacion.tipo != test::Operacion::Texto || operacion.texto.trimmed().isEmpty())
            continue;
        const QString nombre = mapa.Donde(operacion);
        if (nombre.isEmpty())
            hoja.formulario << operacion.texto;
        else
            hoja.casillas[nombre] = operacion.texto;
    }
    return hoja;
}

}  // namespace padral::pruebas
