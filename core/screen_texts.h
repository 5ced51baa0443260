// The texts of the start screen, the menus, the game and the settings.
#pragma once

#include <array>

#include "core/types.h"

namespace quillor::texts {

inline constexpr TextView kProgramName = u"Quillor";
inline constexpr TextView kMakers = u"Quillor developers";
inline constexpr TextView kDisplayFont = u"Arial Rounded MT Bold";

// Dialog buttons.
inline constexpr TextPair kYes{u"&Sí", u"&Yes"};
inline constexpr TextPair kNo{u"&No", u"&No"};
inline constexpr TextPair kAccept{u"Aceptar", u"OK"};
inline constexpr TextPair kCancel{u"Cancelar", u"Cancel"};

// Start screen.
inline constexpr TextPair kFontMissing{
    u"La fuente 'Arial Rounded MT Bold' no está instalada en la PC.",
    u"The 'Arial Rounded MT Bold' font is not installed on this PC."};
inline constexpr TextPair kSearchFont{u"BUSCAR &FUENTE", u"SEARCH &FONT"};
inline constexpr TextPair kOpenFont{u"ABRIR FUENTE", u"OPEN &FONT"};
inline constexpr TextPair kRebootGame{u"&REINICIAR JUEGO", u"&REBOOT ALL"};
inline constexpr TextPair kCloseTip{u" Cerrar ", u" Close "};

// Main menu.
inline constexpr TextPair kMenuTitle{u"Quillor | Inicio", u"Quillor | Start"};
inline constexpr TextPair kMenuHeading{u"INICIO", u"START"};
struct MenuOption {
    TextPair caption;
    TextPair tip;
};
inline constexpr std::array<MenuOption, 4> kMenuOptions{{
    {{u"MODO &ARCADE", u"&ARCADE MODE"},
     {u" Jugar con temas guardados en el juego ", u" Play with saved topics in the game "}},
    {{u"MODO &CLÁSICO", u"&CLASSIC MODE"},
     {u" Jugar con temas improvisados por el usuario ",
      u" Playing with improvised topics by the user "}},
    {{u"&INVENTOR", u"&INVENTOR"},
     {u" Crea nuevos temas para jugar en el modo arcade ",
      u" Create new topics to play in arcade mode "}},
    {{u"AJU&STES", u"&SETTING"},
     {u" Cambiar preferencias del juego ", u" Change game preferences "}},
}};

// Game screen: what stands on it.
inline constexpr std::array<TextPair, 6> kMistakeTips{{
    {u" Primer error ", u" First mistake "},
    {u" Segundo error ", u" Second mistake "},
    {u" Tercer error ", u" Third mistake "},
    {u" Cuarto error ", u" Fourth mistake "},
    {u" Quinto error ", u" Fifth mistake "},
    {u" Sexto error ", u" Sixth mistake "},
}};
inline constexpr TextPair kBonus{u"BONO DEL 50% CONSEGUIDO", u"50% BONUS ACHIEVED"};
inline constexpr TextPair kModeTip{u" Modo ", u" Mode "};
inline constexpr TextPair kScoreTip{u" Puntos ", u" Score "};
inline constexpr TextPair kFinder{u"¿QUÉ ES ESO&?", u"WHAT IS THAT&?"};
inline constexpr TextPair kFinderTip{u" Buscar en internet ", u" Search the internet "};
inline constexpr TextPair kNoTopicShown{u"(TEMA)", u"(TOPIC)"};
inline constexpr TextPair kNewGame{u"NUEVA PARTIDA", u"NEW GAME"};
inline constexpr TextPair kStatusTip{u" Estado actual ", u" Actual status "};
inline constexpr TextPair kTopicTip{u" Tema ", u" Topic "};
inline constexpr TextPair kBoardTip{u" Flechas: casilla por casilla ", u" Arrows: cell by cell "};
inline constexpr TextPair kTimeTip{u" Tiempo ", u" Time "};
inline constexpr TextPair kPlay{u"JUGAR", u"PLAY"};
inline constexpr TextPair kPlayAnother{u"OTRA PARTIDA", u"PLAY ANOTHER"};
inline constexpr TextPair kPlayTip{u" Iniciar o detener partida ", u" Start or stop game "};
inline constexpr TextPair kNumbersTip{u" Números ", u" Numbers "};
inline constexpr TextPair kWriteTip{u" Escribir respuesta ", u" Write answer "};
inline constexpr TextPair kWrite{u"ESCRIBIR", u"WRITE"};
inline constexpr TextPair kArcadeMode{u"MODO ARCADE", u"ARCADE MODE"};
inline constexpr TextPair kClassicMode{u"MODO CLÁSICO", u"CLASSIC MODE"};
inline constexpr TextPair kDead{u"¡MUERTO!", u"DEAD!"};
inline constexpr TextPair kVictory{u"¡VICTORIA!", u"VICTORY!"};
/// The status line while playing, in the order it steps through.
inline constexpr std::array<TextPair, 4> kPlaying{{
    {u"JUGANDO", u"PLAYING"},
    {u". JUGANDO .", u". PLAYING ."},
    {u".. JUGANDO ..", u".. PLAYING .."},
    {u"... JUGANDO ...", u"... PLAYING ..."},
}};
inline constexpr TextPair kScore{u"PUNTOS/ ", u"SCORE/ "};
inline constexpr TextPair kZeroScore{u"SIN PUNTOS/ 0", u"ZERO SCORE/ 0"};
inline constexpr TextPair kInfiniteScore{u"PUNTOS INFINITOS", u"INFINITE SCORE"};
inline constexpr TextPair kSoundsOnTip{u" Sonidos activados ", u" Sounds on "};
inline constexpr TextPair kSoundsOffTip{u" Sonidos activados ", u" Sounds off "};
inline constexpr std::array<TextPair, 10> kTips{{
    {u"¡Salva al ahorcado con tus habilidades!", u"Save the hangman with your skills!"},
    {u"Cada ahorcado, cada familia sin un padre de palitos. ¡Sálvalo!",
     u"Every hangman, every stick figure family without a father. Save him!"},
    {u"Veintisiete letras, diez números, ¡decide bien!",
     u"Twenty-seven letters, ten numbers, decide well!"},
    {u"Juega con temas ilimitados, ¡hasta 50 frases en cada uno!",
     u"Play with unlimited topics, up to 50 phrases in each!"},
    {u"Experimenta y juega con diferentes opciones, ¡te gustará!",
     u"Experience and play with different options, you'll like it!"},
    {u"¿Muy fácil? Intenta jugar con letras ocultas.",
     u"Too easy? Try to play with hidden letters."},
    {u"Reta a tus amigos; ¡a un oponente digno!", u"Challenge your friends; a worthy opponent!"},
    {u"¡Quillor trae diferentes experiencias a intentar!",
     u"Quillor brings different experiences to try!"},
    {u"¡Consigue todos los puntos que puedas! ¡Supérate!",
     u"Get as many points as you can! Get over it!"},
    {u"Si haces trampa te engañas a ti mismo.", u"If you cheat, you fool yourself."},
}};

// Game screen: pieces of the title.
inline constexpr TextView kTitleStart = u"Quillor | ";
inline constexpr TextPair kTitleHard{u" [Difícil]", u" [Hard]"};
inline constexpr TextPair kTitleTime{u" [Tiempo]", u" [Time]"};
inline constexpr TextPair kTourPosition{u"Turista ", u"Tour "};
inline constexpr TextPair kTourOf{u" de ", u"/"};

// Game screen: menu.
inline constexpr TextPair kMenuName{u"Menú", u"Menu"};
inline constexpr TextPair kMenuBack{u"Volver a Inicio", u"Back to Start"};
inline constexpr TextPair kMenuReboot{u"Reiniciar juego", u"Reboot all"};
inline constexpr TextPair kMenuSelection{u"Selección", u"Selection"};
inline constexpr TextPair kMenuManual{u"Manual", u"Manual"};
inline constexpr TextPair kMenuRepeat{u"Repetición", u"Repeat"};
inline constexpr TextPair kMenuTour{u"Turista", u"Tour"};
inline constexpr TextPair kMenuAnyTopic{u"Aleatorio", u"Any topic"};
inline constexpr TextPair kMenuHidden{u"Oculto", u"Hidden"};
inline constexpr TextPair kMenuWrite{u"Escribir respuesta", u"Write answer"};
inline constexpr TextPair kMenuSounds{u"Mostrar sonidos", u"Use sounds"};
inline constexpr TextPair kMenuFirstLetter{u"Primera letra", u"First letter"};
inline constexpr TextPair kMenuHiddenLetters{u"Letras ocultas", u"Hidden letters"};
inline constexpr TextPair kMenuColors{u"Colores suaves", u"Color transition"};
inline constexpr TextPair kMenuAbout{u"Acerca", u"About"};
inline constexpr TextPair kMenuHelp{u"Ayuda", u"Help"};
inline constexpr TextPair kVersion{u": Versión ", u": Version "};

// Game screen: messages and questions.
inline constexpr TextPair kPhraseCut{u"¡Hasta al tope! La frase ha sido muy larga y fue recortada.",
                                     u"Up to the top! The phrase has been very long and was cut."};
inline constexpr TextPair kNoTopics{
    u"No hay palabras para jugar aquí. Trae archivos con palabras a la carpeta 'Temas' del juego "
    u"y reinicia.",
    u"There are no words to play here. Bring files with words to the game's 'Themes' folder and "
    u"restart."};
inline constexpr TextPair kLeaveGame{u"Estás por abandonar esta partida, ¿quieres continuar?",
                                     u"You're about to leave this game, do you want to continue?"};
inline constexpr TextPair kTooManyMistakes{
    u"Tienes muchos errores para poder abandonar la partida, continúa o reinicia el juego.",
    u"You have many mistakes to leave the game, continue or restart the game."};
inline constexpr TextPair kNoPoints{
    u"Perdiste todos tus puntos, para volver a jugar el modo arcade reinicia el juego.",
    u"You have lost all your points, to replay arcade mode restart the game."};
inline constexpr TextPair kHintTooShort{u"La frase es muy corta para ayudarte.",
                                        u"The phrase is too short to help you."};
inline constexpr TextPair kHintNone{u"No hay letras sin repetir para ayudarte.",
                                    u"No unrepeating letters to help you."};
inline constexpr TextPair kEnterAnswer{
    u"Introduce la respuesta.\r\nTen cuidado, si te equivocas es muerte rápida.",
    u"Enter the answer.\r\nBe careful, wrong is quick death."};
inline constexpr TextPair kTourCompleted{u"¡Completaste el viaje!", u"You've completed the tour!"};
inline constexpr TextPair kHelpMissing{u"El archivo de ayuda no se encuentra.",
                                       u"The help file is not found."};

// Of the folder that the game keeps its files in, whose name follows.
inline constexpr TextPair kNothingIsSaved{
    u"No se puede guardar nada en la carpeta del juego. Lo que cambies ahora se perderá al salir.",
    u"Nothing can be saved in the game's folder. What you change now is lost when you leave."};
// What the game's tip line tells after it.
inline constexpr TextPair kSettingsUnsaved{
    u"No se han podido guardar los ajustes. ¿Está lleno el disco?",
    u"The settings could not be saved. Is the disk full?"};
inline constexpr TextPair kProgressUnsaved{
    u"No se ha podido guardar tu progreso. ¿Está lleno el disco?",
    u"Your progress could not be saved. Is the disk full?"};
inline constexpr TextPair kTopicsUnsaved{
    u"No se han podido guardar los temas del juego. ¿Está lleno el disco?",
    u"The game's topics could not be saved. Is the disk full?"};
inline constexpr TextPair kFolderIsShared{
    u"Alguien más está jugando con esta carpeta. Los ajustes serán los de quien los cambie por "
    u"último. ¿Quieres jugar también?",
    u"Somebody else is playing with this folder. The settings will be those of whoever changes "
    u"them last. Do you want to play too?"};
inline constexpr TextPair kNoAnswer{
    u"El juego ya está abierto con esta carpeta, pero no responde. ¿Quieres abrirlo otra vez?",
    u"The game is already open with this folder, but does not answer. Do you want to open it "
    u"once more?"};
inline constexpr TextPair kWaitingForFolder{
    u"La carpeta del juego tarda en responder: puede que su disco sea lento o que ya no esté. El "
    u"juego se abrirá en cuanto responda. Si prefieres no esperar, ciérralo: no se pierde nada.",
    u"The game's folder takes long to answer: its disk may be slow, or gone. The game opens as "
    u"soon as it answers. If you would rather not wait, close it: nothing is lost."};
inline constexpr TextPair kStopWaiting{u"Cerrar", u"Close"};

// Settings screen.
inline constexpr TextPair kSettingsTitle{u"Quillor | Ajustes", u"Quillor | Setting"};
inline constexpr TextPair kSettingsTiles{u"AJUSTES", u"SETTING"};
struct SettingsOption {
    TextPair caption;
    TextPair tip;
};
inline constexpr std::array<SettingsOption, 5> kSettingsOptions{{
    {{u" DISEÑO", u" DESIGN"},
     {u" Apariencia de las letras del juego ", u" Appearance of the player's letters "}},
    {{u" USAR &WIKIPEDIA", u" USE &WIKIPEDIA"},
     {u" Abrir Wikipedia en vez de Bing ", u" Open Wikipedia instead of Bing "}},
    {{u" PUNTAJE &DIFÍCIL", u" HAR&D SCORE"},
     {u" Juega con mayor dificultad ", u" Play with more difficulty "}},
    {{u" PUNTAJE &INFINITO", u" &INFINITE SCORE"},
     {u" Juega sin preocuparte por los puntos ", u" Play without worrying about score "}},
    {{u" &CONTRA RELOJ", u" AGAINST &CLOCK"},
     {u" Juega contra reloj ", u" Play against the clock "}},
}};
inline constexpr std::array<TextPair, 4> kDesignTips{{
    {u" Tinta negra ", u" Black ink "},
    {u" Tinta azul ", u" Blue ink "},
    {u" Fondo negro ", u" Black background "},
    {u" Fondo azul ", u" Blue background "},
}};
inline constexpr TextPair kBack{u"ATRÁS", u"Back"};
inline constexpr TextPair kBackTip{u" Regresar a Inicio ", u" Return to Start "};

// The further menu of every screen, and the keys it explains.
inline constexpr TextPair kView{u"Ver", u"View"};
inline constexpr TextPair kViewTip{u" Ventana, teclas y ayuda ", u" Window, keys and help "};
inline constexpr TextPair kViewFullScreen{u"Pantalla completa", u"Full screen"};
inline constexpr TextPair kViewLanguage{u"English", u"Español"};  // the other one, by its own name
inline constexpr TextPair kAskLanguage{
    u"El juego se reinicia en inglés; si hay una partida en curso, se pierde. ¿Quieres continuar?",
    u"The game restarts in Spanish; a game that is going on is lost. Do you want to continue?"};
inline constexpr TextPair kLanguageStays{
    u"No se puede cambiar el idioma, porque no se puede escribir en la carpeta del juego.",
    u"The language cannot be changed, because the game's folder cannot be written to."};
inline constexpr TextPair kReadBoard{u"Leer el tablero", u"Read the board"};
inline constexpr TextPair kViewKeys{u"Teclas", u"Keys"};
inline constexpr TextPair kViewTopics{u"Archivos de temas", u"Topic files"};
// What a page in a browser says of its files.
inline constexpr TextPair kTopicsBox{
    u"Tus temas están guardados en este navegador. Descarga los que quieras llevarte.",
    u"Your topics are kept in this browser. Download those that you want to take along."};
inline constexpr TextPair kTopicsTake{u"Agregar temas…", u"Add topics…"};
inline constexpr TextPair kTopicsAll{u"Descargar todos", u"Download all"};
inline constexpr TextPair kPictureRemove{u"Quitar la imagen", u"Remove the picture"};
inline constexpr TextPair kNoPicture{u"No se puede usar esa imagen como fondo.",
                                     u"That picture cannot be used as the background."};
inline constexpr TextPair kNothingIsKept{
    u"El navegador no deja guardar nada. Puedes jugar, pero los ajustes y los temas se perderán "
    u"al cerrar la página.",
    u"The browser does not let anything be saved. You can play, but settings and topics will be "
    u"lost when the page is closed."};
inline constexpr TextPair kKeysEverywhere{
    u"Tab y flechas: de un botón a otro\r\nBarra espaciadora: presionar\r\nF10 o Alt+V: este menú"
    u"\r\nF1: ayuda\r\nF11 o Alt+Intro: pantalla completa\r\nEscape: salir de la pantalla "
    u"completa; "
    u"después, regresar\r\nCtrl+Q: cerrar",
    u"Tab and arrows: from button to button\r\nSpace bar: press\r\nF10 or Alt+V: this menu\r\nF1: "
    u"help\r\nF11 or Alt+Return: full screen\r\nEscape: leave full screen; then, go back"
    u"\r\nCtrl+Q: close"};
inline constexpr TextPair kKeysMenu{
    u"A: modo arcade\r\nC: modo clásico\r\nI: inventor\r\nS: ajustes",
    u"A: arcade mode\r\nC: classic mode\r\nI: inventor\r\nS: setting"};
inline constexpr TextPair kKeysGame{
    u"Letras y números: probarlos\r\nIntro: jugar, otra partida\r\n! o Ctrl+E: escribir la "
    u"respuesta\r\n?: ¿qué es eso?, al terminar\r\nF2: volver a Inicio\r\nF3: reiniciar el "
    u"juego\r\nCtrl+M, R, T, A: selección\r\nCtrl+S: sonidos\r\nCtrl+L: primera letra\r\nCtrl+O: "
    u"letras ocultas\r\nF4: leer el tablero con el lector de pantalla\r\nF10 o Alt+M: menú del "
    u"juego",
    u"Letters and numbers: try them\r\nReturn: play, play another\r\n! or Ctrl+E: write the "
    u"answer\r\n?: what is that?, after the game\r\nF2: back to Start\r\nF3: reboot "
    u"all\r\nCtrl+M, R, T, A: selection\r\nCtrl+S: sounds\r\nCtrl+L: first letter\r\nCtrl+O: "
    u"hidden letters\r\nF4: have the screen reader read the board\r\nF10 or Alt+M: the game's "
    u"menu"};
inline constexpr TextPair kKeysSettings{
    u"W: Wikipedia\r\nD: puntaje difícil\r\nI: puntaje infinito\r\nC: contra reloj\r\n1, 2, 3, 4: "
    u"diseño\r\nRetroceso: regresar",
    u"W: Wikipedia\r\nD: hard score\r\nI: infinite score\r\nC: against the clock\r\n1, 2, 3, 4: "
    u"design\r\nBackspace: go back"};
inline constexpr TextPair kKeysPhrase{
    u"Intro: de la frase al tema; en el tema, aceptar\r\nEscape: cerrar sin jugar",
    u"Return: from the phrase to the topic; in the topic, accept\r\nEscape: close without playing"};
inline constexpr TextPair kKeysTopics{
    u"Flechas arriba y abajo: tema\r\nFlechas izquierda y derecha: selección\r\nIntro: "
    u"aceptar\r\nEscape: cerrar sin jugar",
    u"Arrows up and down: topic\r\nArrows left and right: selection\r\nReturn: accept\r\nEscape: "
    u"close without playing"};
inline constexpr TextPair kKeysInventor{
    u"Intro: del nombre a la frase; agrega la frase; en la lista, guarda\r\nSupr: quita la frase "
    u"elegida\r\nRetroceso, al principio del nombre del tema: regresar\r\n?, en el nombre del "
    u"tema: "
    u"información",
    u"Return: from the name to the phrase; adds the phrase; in the list, saves\r\nDelete: removes "
    u"the selected phrase\r\nBackspace, at the beginning of the topic name: go back\r\n?, in the "
    u"topic name: information"};

}  // namespace quillor::texts
