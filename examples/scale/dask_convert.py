"""Converts the dates of a file on a Dask cluster: a block of lines to each worker, order kept.

    python3 dask_convert.py SOURCE TARGET INPUT OUTPUT [SCHEDULER]

SCHEDULER is the address of a running cluster, whose workers have the module calvoro. Without one, two workers are
started on this machine's loopback interface.
"""

import sys

import calvoro
import numpy as np
from distributed import Client, LocalCluster

LINES_A_BLOCK = 100_000


def convert_block(texts, source, target):
    """One block: refused dates give empty lines, as calvoro-cli convert does."""
    return calvoro.convert(texts, source, target, errors="coerce").filled("")


def blocks(path):
    with open(path, encoding="utf-8") as lines:
        block = []
        for line in lines:
            block.append(line.rstrip("\r\n"))
            if len(block) == LINES_A_BLOCK:
                yield np.array(block)
                block = []
        if block:
            yield np.array(block)


def main():
    source, target, input_path, output_path, *scheduler = sys.argv[1:]
    cluster = None
    if not scheduler:
        cluster = LocalCluster(n_workers=2, threads_per_worker=1, host="127.0.0.1", dashboard_address=None)
    with Client(*scheduler or [cluster]) as client, open(output_path, "w", encoding="utf-8") as output:
        answers = [client.submit(convert_block, block, source, target, pure=False) for block in blocks(input_path)]
        for answer in answers:  # in the order of the blocks, whichever worker was first
            output.write("\n".join(answer.result().tolist()) + "\n")
    if cluster is not None:
        cluster.close()


if __name__ == "__main__":
    main()
