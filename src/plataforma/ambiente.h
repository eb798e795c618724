// The platform services the core reaches, one small interface each. The
// desktop program, the command-line tool and the tests each install their own
// before the first routine runs.
#pragma once

#include "plataforma/arquivo_lido.h"
#include "plataforma/caixas.h"
#include "plataforma/dialogos.h"
#include "plataforma/relogio.h"
#include "plataforma/sistema.h"

#include <string>

namespace tramelo {

struct Ambiente {
    Caixas* caixas = nullptr;
    Relogio* relogio = nullptr; // the system clock when none is installed
    Dialogos* dialogos = nullptr; // none: every dialog is cancelled
    Sistema* sistema = nullptr;   // none: no events to run, nothing opens
    FonteArquivos* arquivos = nullptr; // none: files are read from the disk
};

// Through the installed Sistema; without one they do nothing.
void DoEvents();
void MousePointer(int forma);
bool AbreNoSistema(const std::string& caminho);

// The open and save dialogs: the chosen name, or failure 32755 on cancel.
std::string ShowOpen(ConfiguraDialogo& d);
std::string ShowSave(ConfiguraDialogo& d);

// The current moment from the installed clock.
Momento Agora();

// The program-wide services.
Ambiente& ambiente();

// A message box through the installed service. Without one, the box is
// answered with its first button, as a user pressing Enter would.
int MsgBox(const std::string& texto, int estilo = vbOKOnly,
           const std::string& titulo = TituloPrograma);
std::string InputBox(const std::string& prompt, const std::string& titulo,
                     const std::string& padrao);

} // namespace tramelo
