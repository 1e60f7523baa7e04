"""The cursor's path as `velvane inspect` reports it, and as an expression for ffmpeg."""


def ease(a):
    return 4 * a ** 3 if a < 0.5 else 1 - (2 - 2 * a) ** 3 / 2


def position(segments, time):
    """Where the cursor is, in canvas pixels."""
    s = next((s for s in segments if s["start"] <= time < s["end"]), segments[-1])
    if s["startPos"] == s["endPos"]:
        return s["endPos"]
    share = ease(min(max((time - s["start"]) / s["actionDuration"], 0), 1))
    return [a + (b - a) * share for a, b in zip(s["startPos"], s["endPos"])]


def expression(segments, axis, offset):
    """The path along one axis (0 is x), as a function of ffmpeg's `t`.

    The moves are the leaves of a balanced tree of conditions, so that one value costs a handful
    of comparisons however long the demo is.
    """
    leaves = []  # (start, expression)
    for s in segments:
        leaf = _leaf(s, axis, offset)
        if not leaves or leaves[-1][1] != leaf:
            leaves.append((s["start"], leaf))
    return _tree(leaves)


def _leaf(s, axis, offset):
    a, b = s["startPos"][axis], s["endPos"][axis]
    if a == b:
        return f"{a + offset:.6g}"
    share = f"st(0,clip((t-{s['start']:.9g})/{s['actionDuration']:.9g},0,1))"
    eased = "if(lt(ld(0),0.5),4*pow(ld(0),3),1-pow(2-2*ld(0),3)/2)"
    return f"{a + offset:.6g}+({b - a:.6g})*(0*{share}+{eased})"


def _tree(leaves):
    if len(leaves) == 1:
        return leaves[0][1]
    half = len(leaves) // 2
    return f"if(lt(t,{leaves[half][0]:.9g}),{_tree(leaves[:half])},{_tree(leaves[half:])})"
