#include "serve/server.h"

#include "json/answers.h"
#include "json/rapid/input.h"
#include "serve/request.h"

#include "model/errors.h"
#include "model/map_files.h"
#include "orders/order_list.h"
#include "render/map_module.h"
#include "session/commands.h"
#include "session/queries.h"

#include <utility>

namespace orb::serve {
namespace {

using json::Heading;

std::string Shown(const Heading& heading, const session::Situation& situation) {
  return json::ShownText(heading, json::NotedMessages(false), situation.Game);
}

std::string New(const Heading& heading, Request& request, const std::filesystem::path& data) {
  if (request.IsBlank) {
    session::BlankGame(request.Situation, data);
  } else {
    session::NewGame(request.Situation, data);
  }
  if (request.Title) session::SetTitle(request.Situation, *request.Title);
  return Shown(heading, request.Situation);
}

std::string Resolve(const Heading& heading, Request& request) {
  session::Situation& situation = request.Situation;
  const model::Stage stage = situation.Game.Stage;
  const std::vector<std::string> lines = orders::StageList(situation.Game);
  json::NotedMessages messages(request.Yes);
  const bool isDone = session::Resolve(
      situation, messages, request.Reasons ? session::Noting::Full : session::Noting::Outcomes,
      request.Compare ? session::Comparing::Yes : session::Comparing::No);
  return json::ResolvedText(heading, {messages, {}},
                            {isDone, stage, lines, situation, request.Compare});
}

std::string Next(const Heading& heading, Request& request) {
  session::NextSeason(request.Situation);
  return Shown(heading, request.Situation);
}

std::string Possible(const Heading& heading, const Request& request) {
  return json::ListedText(heading, {request.Situation, session::PossibleOrders(request.Situation)});
}

std::string Check(const Heading& heading, const Request& request) {
  return json::CheckedText(heading, {json::NotedMessages(false), {}},
                           {request.Situation, session::CheckOrders(request.Situation),
                            session::OtherReadings(request.Situation)});
}

/// Orders are drawn where they are given: those of a game may be secret.
std::string Map(const Heading& heading, const Request& request, const std::filesystem::path& data,
                const std::filesystem::path& modules) {
  std::vector<orders::OrderOutcome> drawn;
  if (request.Orders) drawn = session::EnteredOrders(request.Situation);
  return json::DrawnText(heading,
                         render::DrawMap({request.Situation.Game, request.Map, data, request.Width,
                                          render::MapFormat::Svg, std::move(drawn)},
                                         modules));
}

}  // namespace

Server::Server(std::filesystem::path dataDirectory, std::filesystem::path moduleDirectory)
    : data_(std::move(dataDirectory)), modules_(std::move(moduleDirectory)) {}

std::string Server::Answer(std::string_view line) {
  std::string id;
  Heading heading{{}};
  try {
    const json::Document document(line);
    heading.Request = id = IdOf(document.Root());
    if (!map_) map_ = model::LoadMap(data_);
    Request request;
    request.Situation.Game = model::EmptyGame(map_);
    TakeRequest(document.Root(), request);
    heading.Command = NameOf(request.Command);
    if (request.Orders) session::ReplaceOrders(request.Situation, *request.Orders);
    switch (request.Command) {
      case Command::New:
        return New(heading, request, data_);
      case Command::Resolve:
        return Resolve(heading, request);
      case Command::Next:
        return Next(heading, request);
      case Command::Possible:
        return Possible(heading, request);
      case Command::Check:
        return Check(heading, request);
      case Command::Map:
        return Map(heading, request, data_, modules_);
    }
    return {};
  } catch (const std::exception& error) {
    return json::RefusedText(heading, json::NotedMessages(false), model::SentenceOf(error));
  }
}

std::string Server::TooLong(std::size_t longest) {
  std::string sentence = "The line is longer than ";
  sentence.append(std::to_string(longest)).append(" bytes.");
  return json::RefusedText({{}}, json::NotedMessages(false), sentence);
}

}  // namespace orb::serve
