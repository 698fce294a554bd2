#pragma once
// The fixture of a screen, in both languages and with big letters, where the main window puts it.

#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>
#include <QScrollArea>

#include "declaration/edition.h"
#include "screens/screen_audit.h"

namespace padral::pruebas {

/// A way in which users may see a screen.
struct Aspecto {
    bool euskera;
    double letra;                          ///< size of the letters, times the usual one
    Edicion edicion = Edicion::Hasta2014;  ///< of the screens that have two
};
inline void PrintTo(const Aspecto& a, std::ostream* salida) {
    *salida << (a.euskera ? "eu" : "es") << " x " << a.letra
            << (a.edicion == Edicion::Desde2015 ? " 2015" : "");
}

/// `Base` is the fixture of one screen; each test opens it, and then looks at it.
template <class Base>
class ConAspecto : public Base, public ::testing::WithParamInterface<Aspecto> {
protected:
    void SetUp() override {
        Base::SetUp();
        QFont otra = fuente_;
        otra.setPointSizeF(fuente_.pointSizeF() * GetParam().letra);
        QApplication::setFont(otra);
        if (GetParam().euskera) this->enEuskera();
    }
    void TearDown() override {
        Base::TearDown();
        QApplication::setFont(fuente_);
    }

    /// Puts the open screen where the main window puts it, and looks at it.
    void mirar() {
        QScrollArea hueco;
        hueco.setFrameShape(QFrame::NoFrame);
        hueco.setWidgetResizable(true);
        hueco.setWidget(this->pantalla.get());
        hueco.resize(1280, 600);
        hueco.show();
        QCoreApplication::processEvents();
        EXPECT_LE(this->pantalla->width(), 1280);
        comprobar();
        revisar();
        hueco.takeWidget();
    }
    /// Looks at the open screen as it is.
    void revisar() {
        for (const auto& faltas :
             {RotulosCortados(*this->pantalla), TeclasRepetidas(*this->pantalla),
              TextosEnOtroIdioma(*this->pantalla, GetParam().euskera, bilingues())})
            EXPECT_TRUE(faltas.isEmpty()) << faltas.join(u'\n').toStdString();
    }

    /// What else holds for the screen in its place.
    virtual void comprobar() {}
    /// The controls that may show both languages.
    virtual QStringList bilingues() const { return {}; }

private:
    const QFont fuente_ = QApplication::font();
};

}  // namespace padral::pruebas
