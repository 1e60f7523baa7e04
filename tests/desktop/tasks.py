"""What takes a while in the window at random: exports, picks, recordings and runs, many of which are
ended before they are done."""

import re
import time

from accessible import wait_for
from driver import xdotool
from looking import active, shown, within

FLOATING = "^(Recording starts|● Recording|Position the cursor)"  # what the dark label says
LONG = 60  # seconds that a recording or a run may take to end on a loaded machine


class Tasks:
    """Part of the hands: needs `editor`, `dice`, `folder`, `number`, and their way to look."""

    def name_for_movie(self):
        self.movies += 1
        return self.folder / f"movie {self.movies}.mp4"

    def says(self, *starts):
        return any(text.startswith(starts) for text in self.editor.status)

    def is_exporting(self):
        nodes = self.editor.window.walk(shown_only=True)
        return any(re.match(r"Exporting, \d+%", node.name) for node in nodes)

    def export(self, patience=None):
        """Exports whole what is done within the seconds, or some; cancels what takes longer."""
        patience = self.dice.random() * 4 if patience is None else patience
        self.focus_canvas()
        self.editor.key("ctrl+e")
        if not within(3, self.editor.dialog_field):
            return
        movie = self.name_for_movie()
        self.editor.choose_file(movie)
        if not within(patience, lambda: self.says("Export")):
            self.end_export()
        wait_for(lambda: not self.is_exporting(), "the export to end", LONG)
        movie.unlink(missing_ok=True)

    def end_export(self):
        window = self.editor.window
        button = next(window.each("push button", "Cancel the export"), None)
        if button:
            self.editor.click(button)

    def floating(self, text=FLOATING):
        return shown("--name", text)

    def pick(self):
        """Picks a place, or ends it with Escape; another step may be selected meanwhile."""
        self.item("Step", "Pick Location on Screen…")
        if not within(2, self.floating):
            return
        if self.dice.random() < 0.7:
            time.sleep(self.dice.random())
            self.editor.key("Escape")
        else:
            xdotool("mousemove", self.dice.randrange(1920), self.dice.randrange(1080))
        wait_for(lambda: not self.floating(), "the pick to end", LONG)

    def record(self, clicks=None):
        """Clicks a little on the empty desktop, or ends it with Escape before it begins."""
        answers = ["Match Screen", "Keep Canvas", "Cancel"] if clicks is None else ["Keep Canvas"]
        clicks = self.dice.randrange(6) - 3 if clicks is None else clicks
        self.focus_canvas()
        self.editor.key("ctrl+shift+r")
        if not within(3, lambda: self.floating() or self.extra()):
            return
        if not self.floating():
            answer = self.dice.choice(answers)
            self.answer(answer)
            if answer == "Cancel":
                return
            wait_for(self.floating, "the label of the recording")
        if clicks >= 0:
            wait_for(lambda: self.floating("^● Recording"), "the recording to begin")
            for _ in range(clicks):
                xdotool("mousemove", *self.desktop_point(), "click", 1)
                time.sleep(self.dice.random())
        self.editor.key("Escape")
        wait_for(lambda: not self.floating(), "the recording to end", LONG)
        self.wait_front()

    def answer(self, text):
        """Answers the question on show; the window may have a button of the same name."""

        def button():
            questions = [w for w in self.editor.root.children if w.role != "frame"]
            return next((b for w in questions for b in w.each("push button", text)), None)

        self.editor.click(wait_for(button, f"the answer {text}"))
        wait_for(lambda: not button(), "the question to go")

    def desktop_point(self):
        """A point that no window covers: the editor is minimized meanwhile."""
        return self.dice.randrange(100, 1800), self.dice.randrange(200, 1000)

    def run_live(self):
        """Runs moves for real, or ends it with Escape; a demo of other steps only counts down."""
        harmless = self.dice.random() < 0.5 and self.leave_moves_only()
        self.focus_canvas()
        self.editor.key("ctrl+r")
        if not within(3, self.is_running_live):
            return
        if not harmless:
            time.sleep(self.dice.random() * 1.5)  # the countdown takes 2.4 s
            self.editor.key("Escape")
        elif self.dice.random() < 0.5:
            time.sleep(3 + self.dice.random())
            self.editor.key("Escape")
        wait_for(lambda: not self.is_running_live(), "the run to end", LONG)
        self.wait_front()

    def is_running_live(self):
        button = next(self.editor.window.each("push button", "Run Live"), None)
        return bool(button) and not button.has("sensitive")

    def leave_moves_only(self):
        """Empties the demo, so that it stays of a size, and adds moves; did that go well?"""
        self.focus_canvas()
        self.item("Edit", "Select All")
        self.item("Step", "Delete Step")
        if not within(2, lambda: not self.shown_rows()):
            return False
        # An empty demo's canvas has a button that records.
        for _ in range(2):
            self.item("Step", "Add Step", "Move to")
            self.click_canvas()
        return all(re.match(r"\d+, Move", row.name) for row in self.shown_rows())

    def wait_front(self):
        """A window that was minimized comes back."""
        wait_for(lambda: active() == self.number, "the editor in front")
