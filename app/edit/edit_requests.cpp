#include "edit/edit_requests.h"

#include "edit/class_table_json.h"
#include "edit/verdict_json.h"
#include "json/Field.h"
#include "json/parse_json.h"
#include "site_file/site_keys.h"
#include "text/language.h"
#include "text/words.h"

#include <QDateTime>

#include <algorithm>
#include <set>

namespace firecheck {

namespace {

using Outcome = EditAnswer::Outcome;

constexpr std::size_t kMostChanges = 10000;

/// A request about a draft that has changed since.
class StaleRevision : public InputError {
public:
    using InputError::InputError;
};

/// A handle as the page writes it, "413".
long long handleFrom(const std::string& text, const JsonPlace& place) {
    bool isNumber = false;
    const long long handle = QString::fromStdString(text).toLongLong(&isNumber);
    if (!isNumber)
        refuse(place, filled(Words::tr("expected a handle, a number as a text")));
    return handle;
}

RequestedChange changeFrom(const Json& value, const JsonPlace& place) {
    if (!value.is_object() || !value.contains("object"))
        refuseType(value, place, filled(Words::tr("an object with \"object\"")));
    RequestedChange change{std::nullopt, value.at("object")};
    if (value.contains("handle")) {
        if (!value.at("handle").is_string())
            refuseType(value.at("handle"), place, filled(Words::tr("a text")));
        change.handle = handleFrom(value.at("handle").get<std::string>(), place);
    }
    if (!change.object.is_object() && !(change.handle && change.object.is_null()))
        refuseType(change.object, place, filled(Words::tr("an object")));
    return change;
}

/// What a request may carry. Each needs some of it.
struct Request {
    std::optional<long long> revision;
    std::vector<RequestedChange> changes;
    std::string finding;

    explicit Request(const std::string& body) {
        const Json json = parseJson(body, "request");
        const JsonPlace top;
        if (!json.is_object())
            refuseType(json, top, filled(Words::tr("an object")));
        if (json.contains("revision"))
            revision = integer<long long>().read(json.at("revision"), top);
        if (json.contains("finding") && json.at("finding").is_string())
            finding = json.at("finding").get<std::string>();
        const Json list = json.value("changes", Json::array());
        if (!list.is_array() || list.size() > kMostChanges)
            refuseType(list, top, filled(Words::tr("a list")));
        for (const Json& change : list)
            changes.push_back(changeFrom(change, top));
    }

    void requireCurrent(const EditSession& session) const {
        if (revision != session.revision())
            throw StaleRevision(filled(Words::tr("the site has been changed elsewhere since")));
    }
};

Json stateJson(const EditSession& session) {
    return {{"revision", session.revision()},
            {"isChanged", session.draft().isChanged()},
            {"canUndo", session.draft().canUndo()},
            {"canRedo", session.draft().canRedo()}};
}

Json objectJson(const Json& object, const ShapesJson& shapes) {
    const long long handle = handleOf(object).value_or(0);
    return {{"handle", std::to_string(handle)}, {"object", object}, {"shape", shapes.of(handle)}};
}

std::set<long long> handlesIn(const ObjectEdits& edits) {
    std::set<long long> handles;
    for (const ObjectEdit& edit : edits)
        for (const Json* object : {&edit.before, &edit.after})
            if (object->is_object())
                handles.insert(handleOf(*object).value_or(0));
    return handles;
}

Json siteJson(const EditSession& session) {
    const Judgement& judgement = session.judgement();
    const ShapesJson shapes(judgement.report);
    Json json = stateJson(session);
    json["file"] = session.fileName();
    json["name"] = judgement.report.siteName;
    json["language"] = currentLanguage().toStdString();
    json["classes"] = classTableJson();
    json["site"] = Json::object();
    for (const auto& [key, value] : session.draft().site().items())
        if (key != kObjectsKey)
            json["site"][key] = value;
    json["objects"] = Json::array();
    for (const Json& object : session.draft().objects())
        json["objects"].push_back(objectJson(object, shapes));
    json["verdict"] = verdictJson(judgement);
    return json;
}

/// What has changed, and what is left of it.
Json changedJson(const EditSession& session, const ObjectEdits& edits) {
    const ShapesJson shapes(session.judgement().report);
    Json json = stateJson(session);
    json["objects"] = Json::array();
    json["removed"] = Json::array();
    for (const long long handle : handlesIn(edits)) {
        if (const Json* object = session.draft().object(handle))
            json["objects"].push_back(objectJson(*object, shapes));
        else
            json["removed"].push_back(std::to_string(handle));
    }
    json["verdict"] = verdictJson(session.judgement());
    return json;
}

Json triedJson(EditSession& session, const Request& request) {
    const EditSession::Tried tried = session.attempt(request.changes);
    const ShapesJson shapes(tried.judgement.report);
    Json list = Json::array();
    for (const long long handle : handlesIn(tried.edits))
        list.push_back({{"handle", std::to_string(handle)}, {"shape", shapes.of(handle)}});
    return {{"shapes", std::move(list)}, {"verdict", verdictJson(tried.judgement)}};
}

Json suggestedJson(const EditSession& session, const Request& request) {
    const std::vector<std::string> ids = findingIds(session.judgement().report);
    const auto found = std::find(ids.begin(), ids.end(), request.finding);
    if (found == ids.end())
        throw StaleRevision(filled(Words::tr("there is no such finding any more")));
    return suggestedChangesJson(session.suggest(static_cast<std::size_t>(found - ids.begin())));
}

Json savedJson(EditSession& session) {
    session.save();
    Json json = stateJson(session);
    json["savedAt"] = QDateTime::currentDateTimeUtc().toString(Qt::ISODate).toStdString();
    return json;
}

Json followed(EditSession& session, const std::string& name, const Request& request) {
    request.requireCurrent(session);
    if (name == "try")
        return triedJson(session, request);
    if (name == "change")
        return changedJson(session, session.change(request.changes));
    if (name == "undo")
        return changedJson(session, session.undo());
    if (name == "redo")
        return changedJson(session, session.redo());
    if (name == "suggest")
        return suggestedJson(session, request);
    if (name == "save")
        return savedJson(session);
    return {};
}

EditAnswer answer(EditSession& session, bool isRead, const std::string& name,
                  const std::string& handleAskedFor, const std::string& body) {
    Json json;
    if (!isRead)
        json = followed(session, name, Request(body));
    else if (name == "site")
        json = siteJson(session);
    else if (name == "zones")
        json = {{"zones",
                 requiredDistancesJson(session.requiredDistances(handleFrom(handleAskedFor, JsonPlace())))}};
    if (json.is_null())
        return {Outcome::NoSuchRequest, {{"error", filled(Words::tr("there is no such request"))}}};
    return {Outcome::Done, std::move(json)};
}

} // namespace

EditAnswer answerRequest(EditSession& session, bool isRead, const std::string& name,
                         const std::string& handleAskedFor, const std::string& body) {
    const auto told = [&](Outcome outcome, const std::exception& error) {
        return EditAnswer{outcome, {{"error", error.what()}, {"revision", session.revision()}}};
    };
    try {
        return answer(session, isRead, name, handleAskedFor, body);
    } catch (const RefusedChange& refused) {
        EditAnswer result = told(Outcome::Refused, refused);
        result.json["handle"] = refused.handle ? Json(std::to_string(*refused.handle)) : Json();
        result.json["key"] = refused.key;
        return result;
    } catch (const StaleRevision& stale) {
        return told(Outcome::Conflict, stale);
    } catch (const ChangedOnDisk& changed) {
        return told(Outcome::Conflict, changed);
    } catch (const RefusedJson& malformed) {
        return told(Outcome::Malformed, malformed);
    } catch (const InputError& error) {
        return told(name == "save" ? Outcome::Failed : Outcome::Malformed, error);
    } catch (const std::exception& error) {
        return told(Outcome::Failed, error);
    }
}

} // namespace firecheck
