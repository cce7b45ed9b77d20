#!/usr/bin/env python3
"""Usage: season_requests.py GAME CHUNK [SEASONS]
Prints the seasons of a chunk as requests for "orbctl serve"."""

import json
import sys

import orb
import seasons

game = orb.Game.read(sys.argv[1])
choices = list(game.possible_orders().values())
head = game.to_json()[:-1] + ',"command":"resolve","yes":true,"orders":'
for orders in seasons.draw(choices, int(sys.argv[2]), *map(int, sys.argv[3:])):
    print(head + json.dumps(orders) + "}")
