#pragma once

#include "returnfile/form27avalues.h"

struct BasicInfo;
struct Session;
class GenerationFrame;

/// What Form 27A shows from a statement screen at the moment of the click: the basic
/// information as it stands, the session's quarter and the generation panel's totals.
Form27AValues coverFormValues(FormKind form, const BasicInfo &info, const Session &session,
                              const GenerationFrame &generation);
