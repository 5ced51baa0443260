// What is said and not shown on a screen: to screen readers, and on the terminal.
#pragma once

#include "core/types.h"

namespace quillor::texts {

// Spoken names: what a screen reader says of a control whose caption is a
// symbol, a field or a drawing.
inline constexpr TextPair kSpokenSounds{u"Sonidos", u"Sounds"};
inline constexpr TextPair kSpokenClose{u"Cerrar", u"Close"};
inline constexpr TextPair kSpokenBack{u"Atrás", u"Back"};
inline constexpr TextPair kSpokenHideNumbers{u"Ocultar números", u"Hide numbers"};
inline constexpr TextPair kSpokenNumbers{u"Números", u"Numbers"};
inline constexpr TextPair kSpokenTopicField{u"Tema", u"Topic"};
inline constexpr TextPair kSpokenPhraseField{u"Frase", u"Phrase"};
inline constexpr TextPair kSpokenTopicList{u"Temas", u"Topics"};
inline constexpr TextPair kSpokenPreviousMode{u"Modo de selección anterior",
                                              u"Previous selection mode"};
inline constexpr TextPair kSpokenNextMode{u"Modo de selección siguiente", u"Next selection mode"};
inline constexpr TextPair kSpokenTopicName{u"Nombre del tema", u"Topic name"};
inline constexpr TextPair kSpokenFileName{u"Nombre del archivo", u"File name"};
inline constexpr TextPair kSpokenPhraseToAdd{u"Frase a agregar", u"Phrase to add"};
inline constexpr TextPair kSpokenPhrases{u"Frases", u"Phrases"};
inline constexpr TextPair kSpokenAdd{u"Agregar", u"Add"};
inline constexpr TextPair kSpokenDelete{u"Remover", u"Delete"};
inline constexpr TextPair kSpokenHelp{u"Información", u"Information"};

// What is spoken while a game is played.
inline constexpr TextPair kSpokenFound{u": sí. ", u": yes. "};
inline constexpr TextPair kSpokenRepeated{u": ya se usó. ", u": used before. "};
inline constexpr TextPair kSpokenMistake{u": no. ", u": no. "};
inline constexpr TextPair kSpokenMistakes{u"Errores: ", u"Mistakes: "};
inline constexpr TextPair kSpokenOf{u" de ", u" of "};
inline constexpr TextPair kSpokenLetters{u"Letras: ", u"Letters: "};
inline constexpr TextPair kSpokenAnswer{u"La respuesta: ", u"The answer: "};
inline constexpr TextPair kSpokenOn{u": sí", u": on"};
inline constexpr TextPair kSpokenOff{u": no", u": off"};
inline constexpr TextPair kSpokenWay{u"Selección: ", u"Selection: "};
inline constexpr TextPair kSpokenPoints{u". Puntos de esta partida: ", u". Points of this game: "};
inline constexpr TextPair kSpokenNewScore{u". Puntaje: ", u". Score: "};
inline constexpr TextPair kSpokenBonus{u". Bono del 50%", u". 50% bonus"};
inline constexpr TextPair kSpokenMinute{u"Queda un minuto.", u"One minute left."};
inline constexpr TextPair kSpokenHalfMinute{u"Quedan 30 segundos.", u"30 seconds left."};
inline constexpr TextPair kSpokenTenSeconds{u"Quedan 10 segundos.", u"10 seconds left."};
inline constexpr TextPair kSpokenNoKey{
    u" no es una tecla del juego; sólo letras sin acento y números.",
    u" is no key of the game; only letters without accents "
    u"and numbers."};
inline constexpr TextPair kSpokenDesign{u"Diseño: ", u"Design: "};
inline constexpr TextPair kBoardName{u"Tablero: ", u"Board: "};
inline constexpr TextPair kCell{u"Casilla ", u"Cell "};
inline constexpr TextPair kCellBlank{u"espacio", u"blank"};
inline constexpr TextPair kCellHidden{u"por descubrir", u"to be found"};
inline constexpr TextPair kCellCovered{u"descubierta, oculta", u"found, hidden"};

// On the terminal, in the system's language.
inline constexpr TextPair kTerminalHelp{
    u"\n"
    u"El ahorcado con frases completas, en español y en inglés.\n"
    u"\n"
    u"Uso: quillor [opciones] [TEMA.txt]...\n"
    u"     quillor --check-topics [ARCHIVO o CARPETA]...\n"
    u"\n"
    u"  TEMA.txt           copia ese tema a la carpeta de temas del juego\n"
    u"  --folder CARPETA   guarda ajustes y temas en CARPETA\n"
    u"  --portable         los guarda en la carpeta del programa, aunque el juego\n"
    u"                     esté instalado para todos\n"
    u"  --language es|en   desde ahora, en español o en inglés\n"
    u"  --tour CARPETA     juega solo una partida corta y deja imágenes de ella\n"
    u"                     en CARPETA\n"
    u"  --check-topics     dice qué tienen de malo unos temas, o los del juego, sin\n"
    u"                     abrir ventanas; termina con 0 si nada, con 1 si algo y\n"
    u"                     con 2 si hay alguno que no se puede leer\n"
    u"  --version          muestra la versión y termina\n"
    u"  --help             muestra este texto y termina\n"
    u"\n"
    u"Sin --folder todo se guarda en la carpeta del programa o, si el juego está\n"
    u"instalado para todos o la carpeta protegida contra escritura, en la de datos\n"
    u"del usuario. Con un archivo English.txt en ella, el juego está en inglés.\n",
    u"\n"
    u"Hangman on whole phrases, in Spanish and English.\n"
    u"\n"
    u"Usage: quillor [options] [TOPIC.txt]...\n"
    u"       quillor --check-topics [FILE or DIR]...\n"
    u"\n"
    u"  TOPIC.txt          copy that topic into the game's topic folder\n"
    u"  --folder DIR       keep settings and topics in DIR\n"
    u"  --portable         keep them in the program's own folder, even where the game\n"
    u"                     is installed for everybody\n"
    u"  --language es|en   speak Spanish or English from now on\n"
    u"  --tour DIR         play a short game by itself and write pictures of it to DIR\n"
    u"  --check-topics     say what is wrong with topics, or with the game's own,\n"
    u"                     without a window; exit with 0 if nothing is, with 1 if\n"
    u"                     something is and with 2 if one cannot be read\n"
    u"  --version          print the version and exit\n"
    u"  --help             print this text and exit\n"
    u"\n"
    u"Without --folder everything is kept in the folder of the program itself or,\n"
    u"where the game is installed for everybody or that folder is write-protected, in\n"
    u"the user's data folder. A file English.txt in it makes the interface English.\n"};
inline constexpr TextPair kUnknownOption{u"opción desconocida: ", u"unknown option: "};
inline constexpr TextPair kUnknownLanguage{u"idioma desconocido, es o en: ",
                                           u"unknown language, es or en: "};
inline constexpr TextPair kNeedsFolder{u"falta la carpeta de la opción: ",
                                       u"a folder is missing for the option: "};
inline constexpr TextPair kNoTopicToRead{u"no se puede leer ningún tema de: ",
                                         u"no topic can be read from: "};
inline constexpr TextPair kCannotUseFolder{u"no se puede usar la carpeta ",
                                           u"cannot use the folder "};
inline constexpr TextPair kTryHelp{u" (prueba --help)", u" (try --help)"};
inline constexpr TextPair kNoDisplay{
    u"no se puede abrir ninguna pantalla (¿tiene valor DISPLAY o WAYLAND_DISPLAY?)",
    u"no display can be opened (is DISPLAY or WAYLAND_DISPLAY set?)"};

}  // namespace quillor::texts
