// The two windows that tell who the program is: the splash that stands for
// two seconds at start (its hidden label is the link's client end), and the
// about box with two links that underline themselves under the mouse.
#pragma once

#include <array>
#include <string>

namespace tramelo {

struct Temporizador {
    int Interval = 0; // ms
    bool Enabled = false;
};

// The text that names the platform of this build, in the splash and the
// about box.
inline constexpr const char* TextoPlataformaAbertura = "for Linux";
inline constexpr const char* TextoPlataformaSobre = "for Linux";

struct FrmAbertura {
    bool Carregado = false;
    std::array<std::string, 2> lblProductName; // the title and its shadow
    std::string lblVersion;
    std::string lblPlatform;
    Temporizador tmrLogin{2000, false};
};

// The one splash of the run.
FrmAbertura& frmAbertura();

// What the desktop does for the splash.
class TelaAbertura {
  public:
    virtual ~TelaAbertura() = default;
    // Its window is made, hidden; the timer counts from now and calls
    // tmrLogin_Timer when its interval is over.
    virtual void Carregada(FrmAbertura& f) = 0;
    // Shows it modally; returns once tmrLogin_Timer has unloaded it.
    virtual void MostraModal(FrmAbertura& f) = 0;
    // Its window goes.
    virtual void Descarregada(FrmAbertura& f) = 0;
};
TelaAbertura*& telaAbertura();

// Captions and version, and the timer started: the count begins at load.
void FrmAbertura_Load(FrmAbertura& f);
// The first tick unloads the splash, which ends the bring-up's modal wait.
void tmrLogin_Timer(FrmAbertura& f);
// Its own link topic is never opened, so in normal running nothing arrives.
void FrmAbertura_LinkExecute(const std::string& CmdStr);

// A rectangle on the screen, in pixels.
struct Retangulo {
    int Left = 0, Top = 0, Right = 0, Bottom = 0;
};
struct Ponto {
    int x = 0, y = 0;
};

struct RotuloLink {
    int Left = 0, Top = 0, Width = 0, Height = 0; // twips
    std::string Caption;
    std::string Tag; // the address the click opens
    bool Underline = false;
};

struct CaixaPosicao { // where the pointer is tested, over a link
    int Left = 0, Top = 0, Width = 0, Height = 0;
    std::string ToolTipText;
};

// The support mailbox and the maker's site.
inline constexpr const char* EnderecoEmail = "suporte@quillon.com.br";
inline constexpr const char* EnderecoSite = "https://www.quillon.com.br";

struct FrmSobre {
    FrmSobre(); // the design state: links, tips and the platform text
    bool Carregado = true;
    bool Enabled = false; // until the load is done
    std::string Caption;
    std::string lblTitulo, lblVersao, lblWindows, lblAviso;
    std::array<RotuloLink, 2> lblLink;
    std::array<CaixaPosicao, 2> picPosLink;
    Temporizador tmrSublinha{100, true};
};

// Moves the two pointer boxes over their links, sets caption, title,
// version and notice, and gives the pointer back.
void FrmSobre_Load(FrmSobre& f);
// Each 100 ms: a link is underlined while the pointer lies strictly inside
// the screen rectangle of its box, edges excluded.
void tmrSublinha_Timer(FrmSobre& f, Ponto cursor, const std::array<Retangulo, 2>& caixas);
// Opens the link; the mail link gets "?Subject=" and the caption. A failure
// opens nothing, silently.
void lblLink_Click(FrmSobre& f, int Index);
void cmdOK_Click(FrmSobre& f);

} // namespace tramelo
