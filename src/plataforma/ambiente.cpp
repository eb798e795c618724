#include "plataforma/ambiente.h"

#include "plataforma/falha.h"

namespace tramelo {

Ambiente& ambiente() {
    static Ambiente a;
    return a;
}

std::string ShowOpen(ConfiguraDialogo& d) {
    Dialogos* dl = ambiente().dialogos;
    if (!dl || !dl->ShowOpen(d)) throw Falha(DialogoCancelado);
    return d.FileName;
}

std::string ShowSave(ConfiguraDialogo& d) {
    Dialogos* dl = ambiente().dialogos;
    if (!dl || !dl->ShowSave(d)) throw Falha(DialogoCancelado);
    return d.FileName;
}

void DoEvents() {
    if (Sistema* s = ambiente().sistema) s->DoEvents();
}

void MousePointer(int forma) {
    if (Sistema* s = ambiente().sistema) s->MousePointer(forma);
}

bool AbreNoSistema(const std::string& caminho) {
    Sistema* s = ambiente().sistema;
    return s && s->Abre(caminho);
}

Momento Agora() {
    if (Relogio* r = ambiente().relogio) return r->Agora();
    static RelogioSistema sistema;
    return sistema.Agora();
}

int MsgBox(const std::string& texto, int estilo, const std::string& titulo) {
    if (Caixas* c = ambiente().caixas) return c->MsgBox(texto, estilo, titulo);
    switch (estilo & 7) {
    case vbOKCancel: return vbOK;
    case vbYesNoCancel:
    case vbYesNo: return vbYes;
    default: return vbOK;
    }
}

std::string InputBox(const std::string& prompt, const std::string& titulo,
                     const std::string& padrao) {
    if (Caixas* c = ambiente().caixas) return c->InputBox(prompt, titulo, padrao);
    return padrao;
}

} // namespace tramelo
