// The texts of entering, choosing and writing phrases and topics.
#pragma once

#include <array>

#include "core/types.h"

namespace quillor::texts {

// Classic entry.
inline constexpr TextPair kEntryTitle{u"Escriba su frase y tema:", u"Write your phrase and topic:"};
inline constexpr TextPair kPhraseLabel{u"FRASE", u"PHRASE"};
inline constexpr TextPair kTopicLabel{u"TEMA", u"TOPIC"};
inline constexpr TextPair kPhraseTip{u" Frase a jugar ", u" Phrase to play "};
inline constexpr TextPair kNoTopic{u"(NINGÚN TEMA)", u"(NO TOPIC)"};
inline constexpr TextPair kOk{u"ACEPTAR", u"OK"};
inline constexpr TextPair kBadCharacters{
    u"Tu frase tiene caracteres no permitidos; sólo letras y números.",
    u"Your phrase has characters not allowed; only letters and numbers."};

// Topic selection.
inline constexpr TextPair kSelectionTitle{u"Seleccione un tema:", u"Select a topic:"};
inline constexpr TextPair kTopicsTip{u" Temas cargados en el juego ",
                                     u"Topics loaded into the game"};
inline constexpr TextPair kSelectionLabel{u"SELECCIÓN", u"SELECTION:"};
inline constexpr TextView kChangeModeTip = u" Cambiar modo de selección ";
inline constexpr std::array<TextPair, 3> kSelectionModes{{
    {u"MANUAL", u"MANUAL"},
    {u"REPETICIÓN", u"REPEAT"},
    {u"TURISTA", u"TOUR"},
}};
inline constexpr TextPair kTooFewPhrases{
    u"El tema seleccionado no tiene suficientes frases, escoge otro.",
    u"The selected topic does't have enough phrases, choose another one."};
inline constexpr TextPair kTopicsError{u"Hay un error que impide abrir los temas.",
                                       u"There is an error that prevents the topics from opening."};
inline constexpr TextPair kHiddenTopicName{u"(TEMA OCULTO)", u"(HIDDEN TOPIC)"};
inline constexpr TextView kSpanishTag = u"[ESPAÑOL]";

// Inventor.
inline constexpr TextView kInventorTitle = u"Quillor | Inventor";
inline constexpr TextPair kInventorHeading{u"INVENTOR", u"INVENTOR"};
inline constexpr TextPair kInventorHelpTip{u" Obtén algo de información ",
                                           u" Get some information "};
inline constexpr TextPair kTopicNameLabel{u"NOMBRE DEL TEMA", u"TOPIC NAME"};
inline constexpr TextPair kFileNameLabel{u"NOMBRE DEL ARCHIVO", u"FILE NAME"};
inline constexpr TextPair kAddPhrasesLabel{u"AGREGA FRASES O PALABRAS A TU NUEVO TEMA",
                                           u"ADD PHRASES OR WORDS TO YOUR NEW TOPIC"};
inline constexpr TextPair kCounterTip{u" Contador ", u" Counter "};
inline constexpr TextPair kPhraseToAddTip{u" Frase a agregar ", u" Phrase to add "};
inline constexpr TextPair kAddTip{u" Agregar a la lista ", u" Add to list "};
inline constexpr TextPair kDeleteTip{u" Remover de la lista ", u" Delete from list "};
inline constexpr TextPair kPhrasesTip{u" Presionar Intro para GUARDAR Y CREAR ",
                                      u" Press Return to SAVE & CREATE "};
inline constexpr TextPair kSave{u"GUARDAR Y CREAR", u"SAVE && CREATE"};
inline constexpr TextPair kFileNameHelp{
    u"El nombre del archivo puede ser diferente al nombre del tema, pero en este caso serán casi "
    u"idénticos.",
    u"The file name can be different from the topic name, but in this case they will be almost "
    u"identical."};
inline constexpr TextPair kBackHelp{
    u"Puedes regresar a Inicio si usas la tecla 'atrás', debes estar en 'Nombre del tema' en "
    u"posición cero.",
    u"You can return to Start if you use the 'back' key, you must be in 'Topic Name' at the zero "
    u"position."};
inline constexpr TextPair kAskRestart{u"¿Quieres reiniciar el juego para cargar el nuevo tema?",
                                      u"Do you want to restart the game to load the new topic?"};

// The sample topic: lines divided by full stops.
inline constexpr TextPair kDemoTopic{
    u"FRASES DE MUESTRA [español].danza.lobo.naruto.saturno.cromosoma.violeta.pollo frito.tacos."
    u"sushi.maestro.aladino.béisbol.iguanodon.ozono.dinero.lavadora.aluminio.kelloggs.jalisco."
    u"newton.jazmín.antofobia.mango.jazz.melodrama.sismo.adverbio.harina.grillo.piano.buscador."
    u"brújula.póquer.cine.coseno.morse.tren.tsunami.hígado.austria.despacho.teclado.espalda."
    u"cactus.turismo.disolución.zapato.cinética.programa.berro",
    u"SAMPLE PHRASES.dance.wolf.naruto.saturn.chromosome.violet.fried chicken.tacos.sushi.teacher."
    u"aladdin.baseball.iguanodon.ozone.Money.washing machine.aluminum.kelloggs.nevada.newton."
    u"jasmine.antophobia.mango.jazz.melodrama.earthquake.adverb.flour.cricket.piano.finder."
    u"compass.poker.cinema.coseno.morse.train.tsunami.liver.austria.dispatch.keyboard.back."
    u"cactus.tourism.dissolution.shoe.kinetics.program.watercress"};

// Progress.
inline constexpr TextPair kProgress{u"Progreso", u"Progress"};
inline constexpr TextPair kProgressTitle{u"Quillor | Progreso", u"Quillor | Progress"};
inline constexpr TextPair kProgressHeading{u"PROGRESO", u"PROGRESS"};
inline constexpr std::array<TextPair, 7> kProgressCounts{{
    {u"Partidas ganadas: ", u"Games won: "},
    {u"Partidas perdidas: ", u"Games lost: "},
    {u"Victorias seguidas: ", u"Victories in a row: "},
    {u"La racha más larga: ", u"Longest run of victories: "},
    {u"Mejor puntaje: ", u"Best score: "},
    {u"Letras probadas: ", u"Letters tried: "},
    {u"Respuestas escritas: ", u"Answers typed: "},
}};
inline constexpr TextPair kProgressNoScores{u"Aquí verás los puntos de tus partidas arcade.",
                                            u"The score of your arcade games will be here."};
inline constexpr TextPair kProgressOneScore{u"Puntos, una partida arcade: ",
                                            u"Score, one arcade game: "};
inline constexpr TextPair kProgressScores{u"Puntos, partidas arcade: ", u"Score, arcade games: "};
inline constexpr TextPair kProgressFrom{u", de ", u", from "};
inline constexpr TextPair kProgressTo{u" a ", u" to "};
inline constexpr TextPair kProgressTopics{u"Frases resueltas de cada tema",
                                          u"Phrases solved of each topic"};
inline constexpr TextPair kProgressOf{u" de ", u" of "};
inline constexpr TextPair kProgressEmpty{u"VA&CIAR", u"&EMPTY"};
inline constexpr TextPair kProgressEmptyTip{u" Empezar a contar de nuevo ",
                                            u" Start counting anew "};
inline constexpr TextPair kAskEmpty{
    u"¿Quieres vaciar tu progreso? No se podrá recuperar.",
    u"Do you want to empty your progress? It cannot be brought back."};
inline constexpr TextPair kKeysProgress{
    u"Flechas arriba y abajo: tema\r\nEscape o Retroceso: regresar",
    u"Arrows up and down: topic\r\nEscape or Backspace: go back"};

// What is found in topics; the detail stands in place of "%".
inline constexpr TextPair kFlawNoText{
    u"no es un texto, o es uno en UTF-16: el juego mostrará signos sin sentido; guárdalo como "
    u"UTF-8",
    u"is no text, or one in UTF-16: the game will show signs without a meaning; save it as UTF-8"};
inline constexpr TextPair kFlawEncoding{
    u"«%» parece una letra mal codificada: el juego la mostrará así; guarda todo el archivo como "
    u"UTF-8",
    u"\"%\" looks like a letter in the wrong encoding: the game will show it so; save the whole "
    u"file as UTF-8"};
inline constexpr TextPair kFlawControl{
    u"codificación dudosa, hay un signo que no se ve (%): la frase no se podrá completar con "
    u"letras",
    u"doubtful encoding, there is a sign that is not seen (%): the phrase cannot be completed by "
    u"letters"};
inline constexpr TextPair kFlawNoTitle{u"falta el título: el juego mostrará (NINGÚN TEMA)",
                                       u"the title is missing: the game will show (NO TOPIC)"};
inline constexpr TextPair kFlawLongTitle{
    u"el título tiene más de % caracteres: el juego lo mostrará más pequeño",
    u"the title has more than % characters: the game will show it smaller"};
inline constexpr TextPair kFlawNoMark{
    u"el título no termina en [español]: el juego lo carga igual, pero nadie verá en qué idioma "
    u"está",
    u"the title does not end in [español]: the game loads it all the same, but nobody will see "
    u"what language it is in"};
inline constexpr TextPair kFlawTooFew{
    u"hay menos de dos frases seguidas tras el título: el juego no dejará jugar este tema",
    u"there are fewer than two phrases in a row behind the title: the game will not let this topic "
    u"be played"};
inline constexpr TextPair kFlawTooMany{
    u"es la frase 51 y sólo caben 50: aquí deja de cargar el juego, también todos los temas que "
    u"siguen",
    u"is phrase 51 and there is room for 50: here the game stops loading, all later topics too"};
inline constexpr TextPair kFlawGap{
    u"línea vacía: las frases que siguen no saldrán nunca en el juego",
    u"empty line: the phrases after it will never come up in the game"};
inline constexpr TextPair kFlawOnlyBlanks{u"sólo tiene espacios: no saldrá nunca en el juego",
                                          u"consists of blanks: it will never come up in the game"};
inline constexpr TextPair kFlawNoKey{
    u"ninguna tecla ofrece «%»: la frase no se podrá completar con letras",
    u"no key offers \"%\": the phrase cannot be completed by letters"};
inline constexpr TextPair kFlawCut{
    u"no cabe en las tres filas de catorce casillas: el juego la recortará",
    u"does not fit into the three rows of fourteen cells: the game will cut it"};
inline constexpr TextPair kFlawLongWord{
    u"«%» no cabe en una fila de catorce casillas: el juego la partirá",
    u"\"%\" does not fit into a row of fourteen cells: the game will break it"};
inline constexpr TextPair kFlawEndBlanks{
    u"los espacios del principio o del final son parte de la respuesta: quien la escriba sin ellos "
    u"perderá",
    u"blanks at the start or the end belong to the answer: whoever types it without them will "
    u"lose"};
inline constexpr TextPair kFlawManyBlanks{
    u"tiene espacios seguidos, que son parte de la respuesta: quien la escriba con uno solo "
    u"perderá",
    u"has blanks in a row, which belong to the answer: whoever types it with one alone will lose"};
inline constexpr TextPair kFlawTwice{
    u"ya está en la línea %: saldrá con más frecuencia que las demás",
    u"is on line % already: it will come up more often than the others"};
inline constexpr TextPair kFlawTwiceFolded{
    u"sólo difiere de la línea % en tildes: en el juego son la misma respuesta",
    u"differs from line % in accents alone: in the game both are the same answer"};
inline constexpr TextPair kFlawElsewhere{u"también está en %: saldrá en los dos temas",
                                         u"is also in %: it will come up in both topics"};
inline constexpr TextPair kFlawLineEnd{
    u"el fin de línea no es CR LF: el juego lo lee igual, pero otros programas quizá no",
    u"the line end is not CR LF: the game reads it all the same, but other programs may not"};

// What the inventor hints at while a topic is written.
inline constexpr TextPair kHintListed{u"Esa frase ya está en la lista.",
                                      u"That phrase is in the list already."};
inline constexpr TextPair kHintReplaces{u"Ya hay un archivo con ese nombre: será reemplazado.",
                                        u"There is a file of that name: it will be replaced."};
inline constexpr TextPair kHintTwoPhrases{u"El juego quiere al menos dos frases.",
                                          u"The game wants two phrases at least."};
inline constexpr TextPair kHintTooMany{
    u"Con más de 50 frases el juego deja de cargar, también los temas que siguen.",
    u"With more than 50 phrases the game stops loading, later topics too."};
inline constexpr TextPair kTopicUnsaved{u"El tema no se ha podido guardar. ¿Está lleno el disco?",
                                        u"The topic could not be saved. Is the disk full?"};
inline constexpr TextPair kOpen{u"A&BRIR", u"&OPEN"};
inline constexpr TextPair kOpenTip{u" Seguir escribiendo un tema que ya existe ",
                                   u" Go on writing a topic that exists "};
inline constexpr TextPair kOpenTitle{u"Abra un tema:", u"Open a topic:"};
inline constexpr TextPair kKeysOpen{
    u"Flechas arriba y abajo: tema\r\nIntro: abrir\r\nEscape: cerrar sin abrir",
    u"Arrows up and down: topic\r\nReturn: open\r\nEscape: close without opening"};
inline constexpr TextPair kLoseTopic{
    u"Perderás las frases del tema que estás escribiendo. ¿Quieres continuar?",
    u"You will lose the phrases of the topic you are writing. Do you want to go on?"};

// Topics that others have written; the file's name stands in place of "%".
inline constexpr TextPair kShareNoTopic{u"«%» no es un tema: los temas son archivos .txt.",
                                        u"\"%\" is no topic: topics are .txt files."};
inline constexpr TextPair kShareUnread{u"No se puede leer «%».", u"\"%\" cannot be read."};
inline constexpr TextPair kShareThere{u"El juego ya tiene el tema «%».",
                                      u"The game has the topic \"%\" already."};
inline constexpr TextPair kShareRefused{u"El juego no puede usar «%»:",
                                        u"The game cannot use \"%\":"};
inline constexpr TextPair kShareFound{u"Esto hay que decir de «%»:",
                                      u"This is to be said of \"%\":"};
inline constexpr TextPair kShareLine{u"Línea ", u"Line "};
inline constexpr TextPair kShareMore{u"Y % más.", u"And % more."};
inline constexpr TextPair kShareAnyhow{u"\r\n¿Quieres copiarlo de todos modos?",
                                       u"\r\nDo you want to copy it all the same?"};
inline constexpr TextPair kShareReplace{
    u"El juego ya tiene un tema «%», distinto de éste. ¿Quieres reemplazarlo?",
    u"The game has a topic \"%\" already, which differs. Do you want to replace it?"};
inline constexpr TextPair kShareFailed{u"«%» no se pudo copiar a la carpeta de temas.",
                                       u"\"%\" could not be copied into the topic folder."};

}  // namespace quillor::texts
