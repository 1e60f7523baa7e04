#!/usr/bin/python3
"""Memory: with all demos closed again the program holds at most a tenth more than before.

usage: memory.py [ACTS] [SEED]

Before means after one demo was exported, recorded, picked for and run, its texts were in all
scripts, every act was done once beside all other demos, and all were closed again: what is made
once, when it is needed for the first time, is not what adds up.
"""

from accessible import wait_for
from fixture import main
from hands import WORDS
from looking import within
from randomly import NAMES, RandomTest, argument

ACTS = argument(int, 500)
SEED = argument(int, 1)
LONG = 60  # seconds for the export of a short demo on a loaded machine
EACH = 25  # acts on a demo until others are opened
MORE = 1.1
SETTLING = 60  # seconds after which threads without work have ended


class Memory(RandomTest):
    seed = SEED

    def memory(self, kind):
        """Megabytes of this kind of memory that the program holds."""
        for line in open(f"/proc/{self.editor.process.pid}/status", encoding="utf-8"):
            if line.startswith(f"{kind}:"):
                return int(line.split()[1]) / 1024
        raise AssertionError("the program has gone")

    def resident(self):
        return self.memory("VmRSS")

    def tell_memory(self, when):
        print(f"{when}: {self.resident():.1f} MB, of these {self.memory('RssFile'):.1f} MB of its "
              "program and libraries", flush=True)

    def warm_up(self):
        self.start()
        print(f"one demo is open: {self.resident():.1f} MB", flush=True)
        hands = self.hands
        for task in (lambda: hands.export(LONG), lambda: hands.record(clicks=2), hands.pick,
                     hands.run_live, hands.play, hands.use_inspector, hands.use_context_menu,
                     hands.choose_from_menu, hands.change_theme, hands.show_about):
            task()
            hands.settle()
        self.write_all_words()
        for name in NAMES:
            if name not in self.opened:
                self.open(name)
        for act in hands.acts:
            act()
            hands.settle()
        self.close_all()

    def write_all_words(self):
        """Shows what is typed at random, which needs several fonts, wherever a text stands."""
        self.hands.item("Step", "Add Step", "Type")
        self.editor.fill(self.editor.field("Text"), " ".join(WORDS))
        self.hands.play()
        self.hands.settle()

    def settled(self, most):
        """The memory once it is at most so much, or after a minute."""
        within(SETTLING, lambda: self.resident() <= most)
        return self.resident()

    def close_all(self):
        while self.opened:
            self.close("Don't Save")
            if self.opened:
                self.next_window()
        wait_for(lambda: self.window("Velvane").has("active"), "the start window")

    def test_all_closed_it_holds_hardly_more_than_before(self):
        self.warm_up()
        before = self.settled(0)
        self.tell_memory("before")
        try:
            while self.count < ACTS:
                self.open(self.dice.choice([name for name in NAMES if name not in self.opened]))
                for _ in range(EACH):
                    self.act()
                print(f"{self.count} acts, {len(self.opened)} demos: {self.resident():.1f} MB",
                      flush=True)
                if len(self.opened) > 2:
                    self.close_all()
                    self.tell_memory("all closed")
            self.close_all()
        except BaseException:
            self.tell()
            raise
        after = self.settled(MORE * before)
        self.tell_memory(f"after {self.count} acts")
        self.assertLessEqual(after, MORE * before)


if __name__ == "__main__":
    main()
