"""A first start leaves the settings file and the sample topic of its language."""

from harness.player import Player

FIRST_SETTINGS = b"0\r\n1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n1\r\n0\r\n0\r\n0\r\n"

SPANISH_SAMPLE = (
    "FRASES DE MUESTRA [español].danza.lobo.naruto.saturno.cromosoma.violeta.pollo frito.tacos."
    "sushi.maestro.aladino.béisbol.iguanodon.ozono.dinero.lavadora.aluminio.kelloggs.jalisco."
    "newton.jazmín.antofobia.mango.jazz.melodrama.sismo.adverbio.harina.grillo.piano.buscador."
    "brújula.póquer.cine.coseno.morse.tren.tsunami.hígado.austria.despacho.teclado.espalda.cactus."
    "turismo.disolución.zapato.cinética.programa.berro"
)
ENGLISH_SAMPLE = (
    "SAMPLE PHRASES.dance.wolf.naruto.saturn.chromosome.violet.fried chicken.tacos.sushi.teacher."
    "aladdin.baseball.iguanodon.ozone.Money.washing machine.aluminum.kelloggs.nevada.newton."
    "jasmine.antophobia.mango.jazz.melodrama.earthquake.adverb.flour.cricket.piano.finder.compass."
    "poker.cinema.coseno.morse.train.tsunami.liver.austria.dispatch.keyboard.back.cactus.tourism."
    "dissolution.shoe.kinetics.program.watercress"
)


def stored(sample):
    return "".join(line + "\r\n" for line in sample.split(".")).encode("cp1252")


class FirstStartInSpanish(Player):
    def test_leaves_the_settings_and_the_spanish_sample(self):
        self.start_at_menu()
        self.assertEqual(self.files(), ["Quillor-Config.ini", "Temas/DEMO.txt"])
        self.assertEqual(self.get("Quillor-Config.ini"), FIRST_SETTINGS)
        self.assertEqual(self.get("Temas/DEMO.txt"), stored(SPANISH_SAMPLE))

    def test_sample_is_offered_without_its_tag(self):
        self.start_at_menu()
        self.open_arcade()
        self.click("lblPlay(0)")
        self.expect_title(self.words.select_topic)
        self.assertEqual(list(self.list_entries()), ["FRASES DE MUESTRA"])

    def test_second_start_keeps_what_the_player_changed(self):
        self.put_topic("Mío", "MÍO [español]")
        self.put_settings(line_0="2")
        before = {name: self.get(name) for name in self.files()}
        self.start_at_menu()
        self.assertEqual({name: self.get(name) for name in self.files()}, before)


class FirstStartInEnglish(Player):
    english = True

    def test_leaves_the_settings_and_the_english_sample(self):
        self.start_at_menu()
        self.assertEqual(self.files(), ["English.txt", "Quillor-Config.ini", "Topics/DEMO.txt"])
        self.assertEqual(self.get("Quillor-Config.ini"), FIRST_SETTINGS)
        self.assertEqual(self.get("Topics/DEMO.txt"), stored(ENGLISH_SAMPLE))
        self.assertEqual(self.get("English.txt"), b"")
