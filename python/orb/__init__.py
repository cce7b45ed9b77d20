"""ORB from Python: games of armies and fleets among seven powers, resolved by the engine itself.

    >>> import orb
    >>> game = orb.Game("Friday night")
    >>> resolution = game.resolve(["FRA A(Par) - Bur"], yes=True)
    >>> print(resolution.report[0].text, resolution.report[0].reason)

Every command works on a copy inside: what is refused leaves the game as it was and raises Error
with the program's own sentence. Copies of games cost next to nothing, and games can be pickled. In
a notebook a game shows its map.
"""

from pathlib import Path

from ._orb import (
    Abandoned,
    Alternative,
    Difference,
    Error,
    Game,
    Message,
    OrderResult,
    ReportLine,
    Resolution,
    Unit,
    _set_home,
)

__all__ = [
    "Abandoned",
    "Alternative",
    "Difference",
    "Error",
    "Game",
    "Message",
    "OrderResult",
    "ReportLine",
    "Resolution",
    "Unit",
]

# The map's files and the module that draws lie beside the package.
_set_home(Path(__file__).parent / "data")
