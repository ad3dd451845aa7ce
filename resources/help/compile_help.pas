{ Compiles a help project: compile_help PROJECT.hhp OUTPUT.chm
  As chmcmd does, except that it names the topics of context numbers as they are named in
  the file; chmcmd names them by where they were on the disk, so that no number opens one. }
program compile_help;

{$mode objfpc}{$H+}

uses
  Classes, SysUtils, chmfilewriter, chmwriter;

type
  THelpProject = class(TChmProject)
  private
    procedure AddContexts(Writer: TChmWriter);
  public
    procedure WriteChm(Stream: TStream); override;
  end;

var
  Failed: Boolean;

procedure Report(Project: TChmProject; Kind: TChmProjectErrorKind; Text: String;
  Level: Integer = 0);
begin
  if Kind in [chmerror, chmwarning] then
  begin
    WriteLn(StdErr, ChmErrorKindText[Kind], ': ', Text);
    Failed := True;
  end;
end;

procedure THelpProject.AddContexts(Writer: TChmWriter);
var
  I: Integer;
  Topic: TChmContextNode;
begin
  for I := 0 to Files.Count - 1 do
  begin
    if not FileExists(ProjectDir + Files[I]) then
      Error(chmerror, 'no file ' + Files[I]);
    Topic := TChmContextNode(Files.Objects[I]);
    if Assigned(Topic) and (Topic.ContextNumber <> 0) then
      Writer.AddContext(Topic.ContextNumber, '/' + Files[I]);
  end;
end;

procedure THelpProject.WriteChm(Stream: TStream);
var
  Writer: TChmWriter;
begin
  LoadSitemaps;
  Writer := TChmWriter.Create(Stream, False);
  Writer.OnGetFileData := @GetData;
  Writer.OnLastFile := @LastFileAdded;
  Writer.FilesToCompress.AddStrings(Files);
  Writer.FilesToCompress.AddStrings(OtherFiles);
  Writer.DefaultPage := DefaultPage;
  Writer.Title := Title;
  Writer.FullTextSearch := MakeSearchable;
  Writer.HasBinaryTOC := MakeBinaryTOC;
  Writer.HasBinaryIndex := MakeBinaryIndex;
  Writer.IndexName := IndexFileName;
  Writer.TocName := TableOfContentsFileName;
  Writer.DefaultWindow := DefaultWindow;
  Writer.LocaleID := LocaleID;
  Writer.Windows := Windows;
  AddContexts(Writer);
  if not Failed then
    Writer.Execute;
  Writer.Free;
end;

var
  Project: THelpProject;
  Output: TFileStream;
begin
  Project := THelpProject.Create;
  Project.OnError := @Report;
  Project.LoadFromhhp(ParamStr(1), False);
  Output := TFileStream.Create(ParamStr(2), fmCreate);
  Project.WriteChm(Output);
  Output.Free;
  if Failed then
  begin
    DeleteFile(ParamStr(2));
    Halt(1);
  end;
end.
