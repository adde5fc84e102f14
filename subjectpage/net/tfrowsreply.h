#pragma once

#include "records/tfrawrows.h"
#include "tfjsp.h"

/// A reply that carries rows: its envelope, and the rows of its payload, read apart from it.
struct TFRowsReply
{
    NtResponse envelope;
    /// The array "Data" of the payload, which is then empty in the envelope; null where the envelope holds
    /// the whole payload.
    TFRawRowsPtr rows;

    /// The rows of \a json alone; \a rest gets all else, with an empty array in their place. Null, with \a
    /// rest as it was, where the toolkit's parser must read the whole of it.
    static TFRawRowsPtr split(const QByteArray &json, QByteArray &rest);

    /// Takes the same replies as TFJSP::parseResponse(), with the same log lines. On false, \a out is as it
    /// was.
    static bool read(const QByteArray &json, TFRowsReply &out);
};
