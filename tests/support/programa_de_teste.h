// The desktop program started for a window test: its data and settings in
// a temporary folder, scripted boxes and dialogs, a new calculation at start
// rather than the tip of the day.
#pragma once

#include "caixas_roteiro.h"
#include "dialogos_roteiro.h"
#include "pasta_temporaria.h"

#include "app/programa_qt.h"
#include "plataforma/canal.h"
#include "shell/registro.h"

#include <QByteArray>

#include <memory>

namespace tramelo::teste {

struct ProgramaDeTeste {
    ProgramaDeTeste() {
        qputenv("XDG_DATA_HOME", pasta.str().c_str());
        qputenv("XDG_CONFIG_HOME", pasta.str().c_str());
        canal1().Reinicia();
        programa = std::make_unique<ProgramaQt>(false);
        DefinePastasRegistro(PastaConfiguracaoUsuario(), pasta.str());
        GravaConfig("Config", "DicasIniciar", "0");
    }
    // The entry routine; the association's question at start is forgotten.
    bool Inicia() {
        const bool primeira = programa->Inicia();
        caixas.mostradas.clear();
        return primeira;
    }

    PastaTemporaria pasta;
    CaixasRoteiro caixas;
    DialogosRoteiro dialogos;
    std::unique_ptr<ProgramaQt> programa;
};

} // namespace tramelo::teste
