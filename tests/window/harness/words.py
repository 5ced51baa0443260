"""What the program says in each language, as a player reads it."""

from dataclasses import dataclass


@dataclass(frozen=True)
class Words:
    menu_title: str
    menu_heading: str
    menu_options: tuple
    topic_folder: str
    arcade_title: str
    arcade: str
    classic_title: str
    classic: str
    new_game: str
    playing: tuple
    won: str
    dead: str
    play: str
    play_another: str
    no_topic_shown: str
    score: str
    select_topic: str
    finder: str
    yes: str
    leave_game: str
    ok: str
    no_topics: str
    too_few_phrases: str
    phrase_cut: str
    enter_answer: str
    settings_title: str
    entry_title: str
    no_topic: str
    tour_completed: str
    tour_position: str
    too_many_mistakes: str
    help_missing: str
    nothing_is_saved: str
    waiting_for_folder: str
    ask_restart: str
    bad_characters: str
    file_name_help: str
    back_help: str
    hard_and_time: str
    no: str = "No"


SPANISH = Words(
    menu_title="Quillor | Inicio",
    menu_heading="INICIO",
    menu_options=("MODO ARCADE", "MODO CLÁSICO", "INVENTOR", "AJUSTES"),
    topic_folder="Temas",
    arcade_title="Quillor | Modo arcade",
    arcade="MODO ARCADE",
    classic_title="Quillor | Modo clásico",
    classic="MODO CLÁSICO",
    new_game="NUEVA PARTIDA",
    playing=("JUGANDO", ". JUGANDO .", ".. JUGANDO ..", "... JUGANDO ..."),
    won="¡VICTORIA!",
    dead="¡MUERTO!",
    play="JUGAR",
    play_another="OTRA PARTIDA",
    no_topic_shown="(TEMA)",
    score="PUNTOS/ ",
    select_topic="Seleccione un tema:",
    finder="¿QUÉ ES ESO?",
    yes="Sí",
    leave_game="Estás por abandonar esta partida, ¿quieres continuar?",
    ok="Aceptar",
    no_topics="No hay palabras para jugar aquí. Trae archivos con palabras a la carpeta 'Temas' del "
    "juego y reinicia.",
    too_few_phrases="El tema seleccionado no tiene suficientes frases, escoge otro.",
    phrase_cut="¡Hasta al tope! La frase ha sido muy larga y fue recortada.",
    enter_answer="Introduce la respuesta.\nTen cuidado, si te equivocas es muerte rápida.",
    settings_title="Quillor | Ajustes",
    entry_title="Escriba su frase y tema:",
    no_topic="(NINGÚN TEMA)",
    tour_completed="¡Completaste el viaje!",
    tour_position="[Turista {} de {}]",
    too_many_mistakes="Tienes muchos errores para poder abandonar la partida, continúa o reinicia el "
    "juego.",
    help_missing="El archivo de ayuda no se encuentra.",
    waiting_for_folder="La carpeta del juego tarda en responder: puede que su disco sea lento o que "
    "ya no esté. El juego se abrirá en cuanto responda. Si prefieres no esperar, ciérralo: no se "
    "pierde nada.",
    nothing_is_saved="No se puede guardar nada en la carpeta del juego. Lo que cambies ahora se "
    "perderá al salir.",
    ask_restart="¿Quieres reiniciar el juego para cargar el nuevo tema?",
    bad_characters="Tu frase tiene caracteres no permitidos; sólo letras y números.",
    file_name_help="El nombre del archivo puede ser diferente al nombre del tema, pero en este caso "
    "serán casi idénticos.",
    back_help="Puedes regresar a Inicio si usas la tecla 'atrás', debes estar en 'Nombre del tema' en "
    "posición cero.",
    hard_and_time=" [Difícil] [Tiempo]",
)

ENGLISH = Words(
    menu_title="Quillor | Start",
    menu_heading="START",
    menu_options=("ARCADE MODE", "CLASSIC MODE", "INVENTOR", "SETTING"),
    topic_folder="Topics",
    arcade_title="Quillor | Arcade mode",
    arcade="ARCADE MODE",
    classic_title="Quillor | Classic mode",
    classic="CLASSIC MODE",
    new_game="NEW GAME",
    playing=("PLAYING", ". PLAYING .", ".. PLAYING ..", "... PLAYING ..."),
    won="VICTORY!",
    dead="DEAD!",
    play="PLAY",
    play_another="PLAY ANOTHER",
    no_topic_shown="(TOPIC)",
    score="SCORE/ ",
    select_topic="Select a topic:",
    finder="WHAT IS THAT?",
    yes="Yes",
    leave_game="You're about to leave this game, do you want to continue?",
    ok="OK",
    no_topics="There are no words to play here. Bring files with words to the game's 'Themes' folder "
    "and restart.",
    too_few_phrases="The selected topic does't have enough phrases, choose another one.",
    phrase_cut="Up to the top! The phrase has been very long and was cut.",
    enter_answer="Enter the answer.\nBe careful, wrong is quick death.",
    settings_title="Quillor | Setting",
    entry_title="Write your phrase and topic:",
    no_topic="(NO TOPIC)",
    tour_completed="You've completed the tour!",
    tour_position="[Tour {}/{}]",
    too_many_mistakes="You have many mistakes to leave the game, continue or restart the game.",
    help_missing="The help file is not found.",
    waiting_for_folder="The game's folder takes long to answer: its disk may be slow, or gone. The "
    "game opens as soon as it answers. If you would rather not wait, close it: nothing is lost.",
    nothing_is_saved="Nothing can be saved in the game's folder. What you change now is lost when "
    "you leave.",
    ask_restart="Do you want to restart the game to load the new topic?",
    bad_characters="Your phrase has characters not allowed; only letters and numbers.",
    file_name_help="The file name can be different from the topic name, but in this case they will "
    "be almost identical.",
    back_help="You can return to Start if you use the 'back' key, you must be in 'Topic Name' at the "
    "zero position.",
    hard_and_time=" [Hard] [Time]",
)
