#!/usr/bin/env python3
"""Counts how orders came out: of answers of "orbctl serve", or of counts of this program itself."""

import json
import sys
from collections import Counter

total = Counter()
for line in sys.stdin:
    answer = json.loads(line)
    if "results" in answer:
        answer = Counter(result["outcome"] for result in answer["results"])
        answer["seasons"] = 1
    total.update(answer)
print(json.dumps(dict(sorted(total.items()))))
